// What the XML library alone takes: the calls that the library has to make, with nothing around them.
#include "Contender.h"

#include <stdexcept>
#include <utility>
#include <vector>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "TalAttributeSchemaReader/dom/ParserSettings.h"

using namespace xercesc;

namespace {

using Text = std::basic_string<XMLCh>;

constexpr XMLCh kLoadAndSave[] = {'L', 'S', 0};
constexpr XMLCh kNoNamespace[] = {0};
constexpr XMLCh kLineFeed[] = {'\n', 0};

// An element as ready-made strings.
struct Element
{
    Text name;
    std::vector<std::pair<Text, Text>> attributes;
    std::vector<Element> children;
};

class Handler : public DOMErrorHandler
{
public:
    bool handleError(const DOMError&) override
    {
        failed = true;
        return true;
    }
    bool failed = false;
};

Text ToText(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

Element Copy(const DOMElement* source)
{
    Element element;
    element.name = source->getNodeName();
    const DOMNamedNodeMap* attributes = source->getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i) {
        const DOMNode* attribute = attributes->item(i);
        element.attributes.emplace_back(attribute->getNodeName(), attribute->getNodeValue());
    }
    for (const DOMElement* child = source->getFirstElementChild(); child;
         child = child->getNextElementSibling())
        element.children.push_back(Copy(child));
    return element;
}

template <class Visit>
void Parse(const std::string& document, Visit&& visit)
{
    XMLPlatformUtils::Initialize(XMLUni::fgXercescDefaultLocale, nullptr, nullptr, nullptr);
    DOMImplementation* implementation = DOMImplementationRegistry::getDOMImplementation(kLoadAndSave);
    DOMLSParser* parser = implementation->createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr,
                                                         XMLPlatformUtils::fgMemoryManager, nullptr);
    Handler handler;
    SecurityManager securityManager;
    ApplyParserSettings(*parser->getDomConfig(), handler, securityManager);
    visit(*parser->parseURI(ToText(document).c_str()));
    parser->release();
    XMLPlatformUtils::Terminate();
    if (handler.failed)
        throw std::runtime_error("the floor could not read " + document);
}

void Append(DOMDocument* document, DOMElement* parent, const Element& source)
{
    DOMText* text = document->createTextNode(kLineFeed);
    DOMElement* element = document->createElement(source.name.c_str());
    parent->appendChild(text);
    parent->appendChild(element);
    for (const auto& [name, value] : source.attributes)
        element->setAttribute(name.c_str(), value.c_str());
    for (const Element& child : source.children)
        Append(document, element, child);
}

class Floor : public Contender
{
public:
    Floor() : Contender(kFloor) {}

    void Read(const std::string& document) override
    {
        Parse(document, [](const DOMDocument&) {});
    }

    void Load(const std::string& document) override
    {
        Parse(document, [&](const DOMDocument& parsed) { m_root = Copy(parsed.getDocumentElement()); });
    }

    void Write(const std::string& document) override
    {
        XMLPlatformUtils::Initialize(XMLUni::fgXercescDefaultLocale, nullptr, nullptr, nullptr);
        MemoryManager* const memory = XMLPlatformUtils::fgMemoryManager;
        DOMImplementation* implementation = DOMImplementationRegistry::getDOMImplementation(kLoadAndSave);
        DOMDocument* dom = implementation->createDocument(kNoNamespace, m_root.name.c_str(), nullptr, memory);
        for (const Element& child : m_root.children)
            Append(dom, dom->getDocumentElement(), child);

        DOMLSSerializer* serializer = implementation->createLSSerializer(memory);
        DOMLSOutput* output = implementation->createLSOutput(memory);
        Handler handler;
        output->setEncoding(nullptr);
        serializer->getDomConfig()->setParameter(XMLUni::fgDOMErrorHandler, &handler);
        {
            LocalFileFormatTarget target(ToText(document).c_str(), memory);
            output->setByteStream(&target);
            serializer->write(dom, output);
        }
        serializer->release();
        output->release();
        dom->release();
        XMLPlatformUtils::Terminate();
        if (handler.failed)
            throw std::runtime_error("the floor could not write " + document);
    }

    void Unload() override { m_root = {}; }

private:
    Element m_root;
};

} // namespace

std::unique_ptr<Contender> MakeFloor()
{
    return std::make_unique<Floor>();
}
