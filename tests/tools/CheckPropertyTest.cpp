// `talschema check` finds nothing skipped or lost exactly when reading and rewriting keep every element and
// attribute.
//
// They are kept when the rewritten document holds each of them at the same place of the tree: each element in
// a partner of its own that has the same name and that stands in the partner of its parent, in the same order
// among the siblings of its name; each attribute with the same value, where the value of a flag is what the
// reader takes it for. What a document type gives by default and what comes out of an entity counts as part
// of the document; elements out of an entity are never read, so their like in the rewritten document is not
// theirs. Of a document that is not read, nothing is kept.
#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "tests/tools/RepositoryDocuments.h"
#include "tests/tools/ToolProcess.h"

using namespace xercesc;
namespace fs = std::filesystem;

namespace {

struct Element
{
    std::string name;
    std::map<std::string, std::string> attributes;
    std::vector<Element> children;
    bool outOfEntity = false;
};

std::string Narrow(const XMLCh* text)
{
    const GuString wide(text);
    std::string narrow;
    for (std::size_t i = 0; i < wide.GetLength();
         ++i) { // everything in one byte or a reference to its number
        const unsigned unit = wide.c_str()[i];
        if (unit < 0x80)
            narrow += static_cast<char>(unit);
        else
            narrow += "\\u" + std::to_string(unit);
    }
    return narrow;
}

void AddChildren(const DOMNode* node, Element& element, bool outOfEntity);

Element ToElement(const DOMNode* node, bool outOfEntity = false)
{
    Element element{Narrow(node->getNodeName()), {}, {}, outOfEntity};
    const DOMNamedNodeMap* attributes = node->getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
        element.attributes[Narrow(attributes->item(i)->getNodeName())] =
            Narrow(attributes->item(i)->getNodeValue());
    AddChildren(node, element, outOfEntity);
    return element;
}

void AddChildren(const DOMNode* node, Element& element, bool outOfEntity)
{
    for (const DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) {
        if (child->getNodeType() == DOMNode::ELEMENT_NODE)
            element.children.push_back(ToElement(child, outOfEntity));
        else if (child->getNodeType() == DOMNode::ENTITY_REFERENCE_NODE)
            AddChildren(child, element, true);
    }
}

/// The document as the library's parser delivers it, or nothing when the parser has anything to say.
std::optional<Element> Parse(const fs::path& file)
{
    struct Listener : HandlerBase
    {
        void warning(const SAXParseException&) override { silent = false; }
        void error(const SAXParseException&) override { silent = false; }
        void fatalError(const SAXParseException&) override { silent = false; }
        bool silent = true;
    } listener;
    SecurityManager securityManager;
    XercesDOMParser parser;
    parser.setDoNamespaces(false);
    parser.setValidationScheme(XercesDOMParser::Val_Auto);
    parser.setSecurityManager(&securityManager);
    parser.setErrorHandler(&listener);
    parser.parse(file.c_str());
    if (!listener.silent)
        return std::nullopt;
    return ToElement(parser.getDocument()->getDocumentElement());
}

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

bool SameValue(const std::string& name, const std::string& before, const std::string& after)
{
    if (name == "Displayable" || name == "Editable")
        return (before == "Yes") == (after == "Yes");
    if (name == "OnChangeCreateVersion" || name == "UseInComparison")
        return (Lower(before) == "yes") == (after == "Yes");
    return before == after;
}

bool Keeps(const Element& before, const Element& after)
{
    if (before.outOfEntity || before.name != after.name)
        return false;
    for (const auto& [name, value] : before.attributes) {
        const auto kept = after.attributes.find(name);
        if (kept == after.attributes.end() || !SameValue(name, value, kept->second))
            return false;
    }
    std::map<std::string, std::vector<const Element*>> partners;
    for (const Element& child : after.children)
        partners[child.name].push_back(&child);
    std::map<std::string, std::size_t> used;
    return std::all_of(before.children.begin(), before.children.end(), [&](const Element& child) {
        const std::size_t number = used[child.name]++;
        return number < partners[child.name].size() && Keeps(child, *partners[child.name][number]);
    });
}

bool IsKept(const fs::path& file, const fs::path& rewritten)
{
    WriteStorageTalAttributeSchema(rewritten.c_str(), ReadSchema(file).get(), nullptr);
    const auto before = Parse(file);
    const auto after = Parse(rewritten);
    return before && after && Keeps(*before, *after);
}

/// Changes a document as people do by mistake.
class Mutator
{
public:
    Mutator(Element& root, unsigned seed) : m_root(root), m_random(seed) {}

    void Mutate()
    {
        for (unsigned rounds = 1 + Below(2); rounds > 0; --rounds) {
            Element& element = *Any(Elements());
            switch (Below(9)) {
            case 0:
                Take(element);
                break;
            case 1:
                Move(element);
                break;
            case 2:
                element.name = Any(Names());
                break;
            case 3:
                element.name = InAnotherCase(element.name);
                break;
            case 4:
                Any(Elements())->children.push_back(Element(element));
                break;
            case 5:
                ChangeAttribute(element, [&](const std::string& name) { return InAnotherCase(name); });
                break;
            case 6:
                ChangeAttribute(element, [&](const std::string&) { return Any(AttributeNames()); });
                break;
            case 7:
                element.attributes[Any(AttributeNames())] = Any(kValues);
                break;
            default:
                if (!element.attributes.empty())
                    element.attributes[AttributeOf(element)] = Any(kValues);
            }
        }
    }

private:
    const std::vector<std::string> kValues = {"",         "Yes",       "yes",    "No",      "no", "true",
                                              "LoadCase", "Iteration", "Python", "VISTADB", "A",  "a\001"};

    unsigned Below(std::size_t bound) { return static_cast<unsigned>(m_random() % bound); }
    template <class T>
    T Any(const std::vector<T>& choices)
    {
        return choices[Below(choices.size())];
    }

    std::vector<Element*> Elements()
    {
        std::vector<Element*> elements = {&m_root};
        for (std::size_t i = 0; i < elements.size(); ++i) {
            for (Element& child : elements[i]->children)
                elements.push_back(&child);
        }
        return elements;
    }
    std::vector<std::string> Names()
    {
        std::vector<std::string> names = {"Readers", "DataGenerator", "Assembly", "Filters", "Unknown"};
        for (const Element* element : Elements())
            names.push_back(element->name);
        return names;
    }
    std::vector<std::string> AttributeNames()
    {
        std::vector<std::string> names = {"IDRef", "name", "NAME", "UseInComparision", "xmlns", "unknown"};
        for (const Element* element : Elements()) {
            for (const auto& attribute : element->attributes)
                names.push_back(attribute.first);
        }
        return names;
    }
    std::string AttributeOf(const Element& element)
    {
        return std::next(element.attributes.begin(), Below(element.attributes.size()))->first;
    }

    std::string InAnotherCase(std::string name)
    {
        char& letter = name[Below(name.size())];
        const auto byte = static_cast<unsigned char>(letter);
        letter = static_cast<char>(std::isupper(byte) ? std::tolower(byte) : std::toupper(byte));
        return name;
    }

    template <class Change>
    void ChangeAttribute(Element& element, Change change)
    {
        if (element.attributes.empty())
            return;
        const std::string name = AttributeOf(element);
        const std::string value = element.attributes[name];
        element.attributes.erase(name);
        element.attributes[change(name)] = value;
    }

    std::optional<Element> Take(const Element& element)
    {
        for (Element* parent : Elements()) {
            for (auto child = parent->children.begin(); child != parent->children.end(); ++child) {
                if (&*child == &element) {
                    Element taken = std::move(*child);
                    parent->children.erase(child);
                    return taken;
                }
            }
        }
        return std::nullopt; // the root
    }
    void Move(const Element& element)
    {
        if (auto taken = Take(element)) {
            auto& children = Any(Elements())->children;
            children.insert(children.begin() + Below(children.size() + 1), std::move(*taken));
        }
    }

    Element& m_root;
    std::mt19937 m_random;
};

std::string ToText(const Element& element)
{
    std::string text = "<" + element.name;
    for (const auto& [name, value] : element.attributes) {
        text += " " + name + "=\"";
        for (const char character : value)
            text += std::isalnum(static_cast<unsigned char>(character))
                        ? std::string(1, character)
                        : "&#" + std::to_string(static_cast<unsigned char>(character)) + ";";
        text += '"';
    }
    text += ">\n";
    for (const Element& child : element.children)
        text += ToText(child);
    return text + "</" + element.name + ">";
}

class CheckProperty : public Talschema
{
protected:
    CheckProperty() { XMLPlatformUtils::Initialize(); }
    ~CheckProperty() override { XMLPlatformUtils::Terminate(); }

    /// The identifiers of what is skipped, lost or unreadable, by file.
    std::map<std::string, std::set<std::string>> LossesIn(const std::string& files) const
    {
        const Result result = Run("talschema check --format json -- " + files);
        const auto report = nlohmann::json::parse(result.out);
        std::map<std::string, std::set<std::string>> losses;
        for (const auto& finding : report.at("findings")) {
            const std::string kind = finding.at("kind");
            if (kind == "skipped" || kind == "lost" || kind == "unreadable")
                losses[finding.at("file")].insert(finding.at("identifier").get<std::string>());
        }
        return losses;
    }

    fs::path Rewritten() const { return m_directory / "rewritten.out"; }
};

TEST_F(CheckProperty, HoldsForAllDocumentsOfTheRepository)
{
    std::string files;
    for (const fs::path& document : DocumentsOfTheRepository())
        files += " '" + document.string() + "'";
    const auto losses = LossesIn(files);
    int kept = 0;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        const auto found = losses.find(document.string());
        EXPECT_EQ(IsKept(document, Rewritten()), found == losses.end())
            << document << (found == losses.end() ? "" : ": " + *found->second.begin());
        kept += found == losses.end();
    }
    EXPECT_GT(kept, 20);
    EXPECT_GT(losses.size(), 20U);
}

TEST_F(CheckProperty, HoldsForMutatedDocuments)
{
    std::vector<Element> originals;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        // What is lost already hides what a mutation loses; and the depth limit has a document of its own.
        if (fs::file_size(document) < 20'000 && IsKept(document, Rewritten()))
            originals.push_back(*Parse(document));
    }
    const char* const wantedRounds = std::getenv("TALSCHEMA_MUTATIONS");
    const unsigned rounds = wantedRounds ? static_cast<unsigned>(std::atoi(wantedRounds)) : 600;
    for (unsigned seed = 0; seed < rounds; ++seed) {
        Element root = originals[seed % originals.size()];
        Mutator(root, seed).Mutate();
        Write(std::to_string(seed) + ".xml", "<?xml version='1.1'?>\n" + ToText(root));
    }
    const auto losses = LossesIn("*.xml");
    std::map<bool, int> count;
    for (unsigned seed = 0; seed < rounds; ++seed) {
        const std::string name = std::to_string(seed) + ".xml";
        const auto found = losses.find(name);
        const bool kept = IsKept(m_directory / name, Rewritten());
        ++count[kept];
        ASSERT_EQ(kept, found == losses.end())
            << "seed " << seed << (found == losses.end() ? "" : ": " + *found->second.begin()) << "\n"
            << Content(name) << "\n"
            << FileContent(Rewritten());
    }
    EXPECT_GT(count[true], 20);
    EXPECT_GT(count[false], 20);
    RecordProperty("kept", count[true]);
}

} // namespace
