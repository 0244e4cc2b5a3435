#include "TalAttributeSchemaReader/dom/DomHelpers.h"

#include <cstddef>
#include <type_traits>
#include <utility>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMText.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"

using namespace xercesc;

static_assert(std::is_same_v<XMLCh, GuChar>, "text passes to and from the XML library as it is");

namespace {

/// A name as the XML library takes it. Nearly always it is a short one of the format in ASCII, which needs
/// neither memory nor a code page.
class XmlName
{
public:
    explicit XmlName(const char* name)
    {
        std::size_t length = 0;
        for (; name[length] && static_cast<unsigned char>(name[length]) < 0x80 && length < kLongest; ++length)
            m_short[length] = static_cast<XMLCh>(name[length]);
        m_short[length] = 0;
        if (name[length])
            m_other = ThroughNarrowCodePage(name);
    }

    const XMLCh* c_str() const { return m_other.IsEmpty() ? m_short : m_other.c_str(); }

private:
    static constexpr std::size_t kLongest = 31;

    XMLCh m_short[kLongest + 1];
    GuString m_other;
};

DOMElement* AppendChild(DOMNode* parent, const XMLCh* tagName)
{
    DOMDocument* document = parent ? parent->getOwnerDocument() : nullptr;
    if (!document)
        return nullptr;
    constexpr GuChar lineFeed[] = {'\n', 0};
    DOMText* text = document->createTextNode(lineFeed);
    DOMElement* element = document->createElement(tagName);
    parent->appendChild(text);
    parent->appendChild(element);
    return element;
}

} // namespace

DOMElement* AppendChildElement(DOMNode* parent, GuString tagName)
{
    return AppendChild(parent, ThroughNarrowCodePage(std::move(tagName)).c_str());
}

DOMElement* AppendChildElement(DOMNode* parent, const char* tagName)
{
    return AppendChild(parent, XmlName(tagName).c_str());
}

void SetElementAttribute(DOMElement* element, GuString name, GuString value)
{
    if (!element)
        return;
    const GuString narrowedValue = ThroughNarrowCodePage(std::move(value));
    element->setAttribute(ThroughNarrowCodePage(std::move(name)).c_str(), narrowedValue.c_str());
}

void SetElementAttribute(DOMElement* element, const char* name, const GuString& value)
{
    if (!element)
        return;
    const XmlName xmlName(name);
    if (GuConversionAllocator::HoldsUnchanged(value))
        element->setAttribute(xmlName.c_str(), value.c_str());
    else
        element->setAttribute(xmlName.c_str(), ThroughNarrowCodePage(value).c_str());
}

GuString GuStringFromXMLCh(const XMLCh* text)
{
    return GuString(text, 0);
}

DOMElement* AppendElementWithAttribute(DOMNode* parent, const char* tagName, const char* name,
                                       const GuString& value)
{
    DOMElement* element = AppendChildElement(parent, tagName);
    SetElementAttribute(element, name, value);
    return element;
}

void AppendReferences(DOMNode* parent, const char* tagName, const GuStringArray& references)
{
    for (const GuString& reference : references)
        AppendElementWithAttribute(parent, tagName, "IDRef", reference);
}

DOMElement* AsElement(DOMNode* node)
{
    return node && node->getNodeType() == DOMNode::ELEMENT_NODE ? static_cast<DOMElement*>(node) : nullptr;
}

GuString ThroughNarrowCodePage(GuString text)
{
    if (GuConversionAllocator::HoldsUnchanged(text))
        return text;
    GuConversionAllocator allocator;
    return GuString(allocator.UnicodeToAnsi(text), 0);
}
