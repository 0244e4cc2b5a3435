#include "TalAttributeSchemaHost/table/generator/TableSource.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <map>
#include <set>
#include <stdexcept>
#include <vector>

#include "TalAttributeSchemaHost/table/generator/IdentityConstraints.h"
#include "TalAttributeSchemaHost/table/generator/SchemaNodes.h"

using namespace xercesc;

namespace {

std::string InSmallLetters(std::string text)
{
    for (char& letter : text)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    return text;
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

} // namespace

std::string TableSource(const DOMElement* schema)
{
    return Generator(schema).Source();
}
