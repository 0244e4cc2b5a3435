// Makes the source of the format table from attribute-schema.xsd while the library is built. Arguments:
// schema, output.
#include <algorithm>
#include <cctype>
#include <fstream>
#include <initializer_list>
#include <iostream>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

using namespace xercesc;

namespace {

using Names = std::initializer_list<const char*>;

const std::string kFactPrefix = "tal:";

std::string Text(const XMLCh* text)
{
    std::string narrow;
    for (; text && *text; ++text)
        narrow += static_cast<char>(*text); // everything that the table takes is ASCII
    return narrow;
}

std::string InSmallLetters(std::string text)
{
    for (char& letter : text)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    return text;
}

std::string Get(const DOMElement* element, const std::string& attribute)
{
    const DOMNamedNodeMap* attributes = element->getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
        if (Text(attributes->item(i)->getNodeName()) == attribute)
            return Text(attributes->item(i)->getNodeValue());
    }
    return {};
}

std::string Fact(const DOMElement* element, const std::string& name)
{
    return Get(element, kFactPrefix + name);
}

std::vector<const DOMElement*> Children(const DOMElement* parent, const std::string& name)
{
    std::vector<const DOMElement*> children;
    for (const DOMElement* child = parent->getFirstElementChild(); child;
         child = child->getNextElementSibling()) {
        if (Text(child->getNodeName()) == name)
            children.push_back(child);
    }
    return children;
}

/// A fact that the table would not take must not be lost silently either.
void ExpectFacts(const DOMElement* element, Names known)
{
    const DOMNamedNodeMap* attributes = element->getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
        const std::string name = Text(attributes->item(i)->getNodeName());
        if (name.rfind(kFactPrefix, 0) == 0 &&
            std::none_of(known.begin(), known.end(),
                         [&](const char* fact) { return name == kFactPrefix + fact; }))
            throw std::runtime_error("unexpected " + name + " on " + Get(element, "name"));
    }
}

/// Nor must a way to describe elements that the table cannot take.
void ExpectChildren(const DOMElement* parent, Names known)
{
    for (const DOMElement* child = parent->getFirstElementChild(); child;
         child = child->getNextElementSibling()) {
        const std::string name = Text(child->getNodeName());
        if (name != "xs:annotation" &&
            std::none_of(known.begin(), known.end(), [&](const char* other) { return name == other; }))
            throw std::runtime_error("unexpected " + name + " in " + Get(parent, "name"));
    }
}

/// "ignore-case" becomes `Match::IgnoreCase`, nothing becomes `Match::None`.
std::string Enumerator(const std::string& type, const std::string& name)
{
    std::string enumerator = type + "::";
    bool initial = true;
    for (const char character : name.empty() ? "none" : name) {
        if (character != '-')
            enumerator +=
                initial ? static_cast<char>(std::toupper(static_cast<unsigned char>(character))) : character;
        initial = character == '-';
    }
    return enumerator;
}

std::string Literal(const std::string& text)
{
    return text.empty() ? "nullptr" : '"' + text + '"';
}

std::string Bool(bool value)
{
    return value ? "true" : "false";
}

std::string Row(const std::vector<std::string>& cells)
{
    std::string row;
    for (const std::string& cell : cells)
        row += (row.empty() ? "" : ", ") + cell;
    return "    {" + row + "},\n";
}

std::vector<std::string> Split(const std::string& text, char separator)
{
    std::vector<std::string> parts(1);
    for (const char character : text) {
        if (character == separator)
            parts.emplace_back();
        else if (character != ' ')
            parts.back() += character;
    }
    return parts;
}

/// The attributes of a type. A type without elements has them in an extension of white space.
std::vector<const DOMElement*> AttributesOf(const DOMElement* type)
{
    const std::vector<const DOMElement*> content = Children(type, "xs:simpleContent");
    if (content.empty())
        return Children(type, "xs:attribute");
    ExpectChildren(type, {"xs:simpleContent"});
    ExpectChildren(content.front(), {"xs:extension"});
    const DOMElement* const extension = Children(content.front(), "xs:extension").at(0);
    ExpectChildren(extension, {"xs:attribute", "xs:anyAttribute"});
    if (Get(extension, "base") != "WhiteSpace")
        throw std::runtime_error("unexpected text in " + Get(type, "name"));
    return Children(extension, "xs:attribute");
}

bool HasAnyAttribute(const DOMElement* type)
{
    const std::vector<const DOMElement*> content = Children(type, "xs:simpleContent");
    const DOMElement* const holder = content.empty() ? type : Children(content.front(), "xs:extension").at(0);
    return !Children(holder, "xs:anyAttribute").empty();
}

/// The identity constraints tell validators what "tal:defines" and "tal:refersTo" tell the table. Neither may
/// say what the other does not.
class IdentityConstraints
{
public:
    IdentityConstraints(const DOMElement* schema, const DOMElement* root) : m_root(root)
    {
        for (const DOMElement* type : Children(schema, "xs:complexType"))
            m_types[Get(type, "name")] = type;
    }

    void Check()
    {
        ExpectChildren(m_root, {"xs:unique", "xs:keyref"});
        for (const DOMElement* constraint : Children(m_root, "xs:unique"))
            Take(constraint, "defines", Get(constraint, "name"));
        for (const DOMElement* constraint : Children(m_root, "xs:keyref"))
            Take(constraint, "refersTo", Get(constraint, "refer"));
        for (const auto& [name, type] : m_types) {
            for (const DOMElement* attribute : AttributesOf(type)) {
                const bool hasFact =
                    !Fact(attribute, "defines").empty() || !Fact(attribute, "refersTo").empty();
                if (hasFact && m_constrained.count(attribute) == 0)
                    throw std::runtime_error("no identity constraint for " + Get(attribute, "name") + " of " +
                                             name);
            }
        }
    }

private:
    using Types = std::set<const DOMElement*>;

    /// The types of the elements of a name in some types.
    Types Step(const Types& parents, const std::string& name) const
    {
        Types types;
        for (const DOMElement* parent : parents) {
            for (const DOMElement* model : Children(parent, "xs:choice")) {
                for (const DOMElement* element : Children(model, "xs:element")) {
                    if (Get(element, "name") == name)
                        types.insert(m_types.at(Get(element, "type")));
                }
            }
        }
        return types;
    }

    Types Selected(std::string path) const
    {
        Types types = {m_types.at(Get(m_root, "type"))};
        if (path.rfind(".//", 0) == 0) {
            path.erase(0, 3);
            for (const auto& [name, type] : m_types)
                types.insert(type);
        }
        for (const std::string& name : Split(path, '/'))
            types = Step(types, name);
        if (types.empty())
            throw std::runtime_error("the path " + path + " leads nowhere");
        return types;
    }

    void Take(const DOMElement* constraint, const std::string& fact, const std::string& kind)
    {
        ExpectChildren(constraint, {"xs:selector", "xs:field"});
        const std::string field = Get(Children(constraint, "xs:field").at(0), "xpath");
        for (const std::string& path : Split(Get(Children(constraint, "xs:selector").at(0), "xpath"), '|')) {
            for (const DOMElement* type : Selected(path)) {
                bool agrees = false;
                for (const DOMElement* attribute : AttributesOf(type)) {
                    if (field == "@" + Get(attribute, "name") && Fact(attribute, fact) == kind) {
                        m_constrained.insert(attribute);
                        agrees = true;
                    }
                }
                if (!agrees)
                    throw std::runtime_error("constraint " + Get(constraint, "name") + " and the facts of " +
                                             path + " differ");
            }
        }
    }

    const DOMElement* m_root;
    std::map<std::string, const DOMElement*> m_types;
    std::set<const DOMElement*> m_constrained; // attributes
};

class Generator
{
public:
    explicit Generator(const DOMElement* schema) : m_schema(schema)
    {
        ExpectChildren(schema, {"xs:element", "xs:simpleType", "xs:complexType"});
        for (const DOMElement* type : Children(schema, "xs:simpleType")) {
            ExpectFacts(type, {"flag"});
            m_flags[Get(type, "name")] = Fact(type, "flag");
        }
        for (const DOMElement* type : Children(schema, "xs:complexType"))
            m_typeIndex.emplace(Get(type, "name"), m_typeIndex.size());
    }

    std::string Source()
    {
        std::string types;
        for (const DOMElement* type : Children(m_schema, "xs:complexType"))
            types += TypeRow(type);
        const DOMElement* const rootElement = Children(m_schema, "xs:element").at(0);
        IdentityConstraints(m_schema, rootElement).Check();
        const std::string root = ElementRow(rootElement);
        return "#include \"TalAttributeSchemaHost/table/FormatTable.h\"\n\nnamespace tal {\n\nnamespace "
               "{\n\nextern const "
               "ElementType "
               "kTypes[" +
               std::to_string(m_typeIndex.size()) + "];\n\nconst ElementRule kElements[] = {\n" + m_elements +
               "};\n\nconst AttributeRule kAttributes[] = {\n" + m_attributes +
               "};\n\nconst ElementType kTypes[] = {\n" + types +
               "};\n\n} // namespace\n\nconst ElementRule kRootElement =\n" +
               root.substr(0, root.rfind(',')) + ";\nconst Rows<ElementType> kElementTypes = {kTypes, " +
               std::to_string(m_typeIndex.size()) + "};\n\n} // namespace tal\n";
    }

private:
    std::string TypeRow(const DOMElement* type)
    {
        ExpectFacts(type, {"attributeNames", "contentNotWritten", "withoutAttributes",
                           "contentWithoutAttributes", "withoutElements"});
        ExpectChildren(type,
                       {"xs:choice", "xs:sequence", "xs:attribute", "xs:anyAttribute", "xs:simpleContent"});
        const std::size_t firstElement = m_elementCount;
        bool anyElements = false;
        for (const char* group : {"xs:choice", "xs:sequence"}) {
            for (const DOMElement* model : Children(type, group)) {
                ExpectChildren(model, {"xs:element", "xs:any"});
                anyElements = anyElements || !Children(model, "xs:any").empty();
                for (const DOMElement* element : Children(model, "xs:element")) {
                    ExpectChildren(element, {});
                    m_elements += ElementRow(element);
                    ++m_elementCount;
                }
            }
        }
        const std::size_t firstAttribute = m_attributeCount;
        const std::string key = Key(type);
        std::set<std::string> names;
        for (const DOMElement* attribute : AttributesOf(type)) {
            ExpectChildren(attribute, {});
            if (!names.insert(InSmallLetters(Get(attribute, "name"))).second)
                throw std::runtime_error("two attributes of " + Get(type, "name") + " have one name");
            m_attributes += AttributeRow(attribute);
            ++m_attributeCount;
        }
        return Row({Part("kElements", firstElement, m_elementCount),
                    Part("kAttributes", firstAttribute, m_attributeCount), key, Bool(anyElements),
                    Bool(HasAnyAttribute(type)), Enumerator("Match", Fact(type, "attributeNames")),
                    Finding(type, "contentNotWritten"), Finding(type, "withoutAttributes"),
                    Finding(type, "contentWithoutAttributes"), Finding(type, "withoutElements")});
    }

    std::string ElementRow(const DOMElement* element) const
    {
        ExpectFacts(element, {"list", "maxLevel", "notWritten", "onlyFor"});
        return Row({Literal(Get(element, "name")),
                    "kTypes + " + std::to_string(m_typeIndex.at(Get(element, "type"))),
                    Bool(Fact(element, "list") == "yes"), Bool(Fact(element, "maxLevel") == "yes"),
                    Finding(element, "notWritten"), Literal(Fact(element, "onlyFor"))});
    }

    std::string AttributeRow(const DOMElement* attribute)
    {
        ExpectFacts(attribute,
                    {"selects", "defines", "refersTo", "ifEmpty", "notWritten", "notRead", "writtenFrom"});
        return Row({Literal(Get(attribute, "name")), Bool(Get(attribute, "use") == "required"),
                    Enumerator("Match", m_flags[Get(attribute, "type")]),
                    Enumerator("Match", Fact(attribute, "selects")),
                    Enumerator("Definition", Fact(attribute, "defines")),
                    Enumerator("Definition", Fact(attribute, "refersTo")), Finding(attribute, "ifEmpty"),
                    Finding(attribute, "notWritten"), Finding(attribute, "notRead"),
                    Literal(Fact(attribute, "writtenFrom"))});
    }

    /// What an element is known by when others come and go around it: its identifier, else what it refers to,
    /// else its name.
    std::string Key(const DOMElement* type) const
    {
        const std::vector<const DOMElement*> attributes = AttributesOf(type);
        const auto first = [&](auto isKey) {
            return std::find_if(attributes.begin(), attributes.end(), isKey);
        };
        auto key = first([](const DOMElement* a) { return !Fact(a, "defines").empty(); });
        if (key == attributes.end())
            key = first([](const DOMElement* a) { return !Fact(a, "refersTo").empty(); });
        if (key == attributes.end())
            key = first([](const DOMElement* a) { return Get(a, "name") == "Name"; });
        if (key == attributes.end())
            return "nullptr";
        return "kAttributes + " +
               std::to_string(m_attributeCount + static_cast<std::size_t>(key - attributes.begin()));
    }

    static std::string Finding(const DOMElement* element, const std::string& fact)
    {
        return Enumerator("FindingId", Fact(element, fact));
    }

    static std::string Part(const std::string& array, std::size_t first, std::size_t end)
    {
        return "{" + array + " + " + std::to_string(first) + ", " + std::to_string(end - first) + "}";
    }

    const DOMElement* m_schema;
    std::map<std::string, std::string> m_flags;
    std::map<std::string, std::size_t> m_typeIndex;
    std::string m_elements;
    std::size_t m_elementCount = 0;
    std::string m_attributes;
    std::size_t m_attributeCount = 0;
};

void Generate(const char* schema, const char* output)
{
    // The XML library takes a path that names no drive for a relative one.
    std::ifstream input(schema, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(input), {});
    XercesDOMParser parser;
    parser.parse(MemBufInputSource(reinterpret_cast<const XMLByte*>(text.data()), text.size(), "schema"));
    if (parser.getErrorCount() > 0 || !parser.getDocument())
        throw std::runtime_error("the schema cannot be parsed");
    std::ofstream file(output);
    file << Generator(parser.getDocument()->getDocumentElement()).Source();
    if (!file.flush())
        throw std::runtime_error("the table cannot be written");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    XMLPlatformUtils::Initialize();
    int exitCode = 0;
    try {
        Generate(argv[1], argv[2]);
    } catch (const std::exception& exception) {
        std::cerr << argv[1] << ": error: " << exception.what() << "\n";
        exitCode = 1;
    }
    XMLPlatformUtils::Terminate();
    return exitCode;
}
