#include "TalAttributeSchemaReader/dom/DomHelpers.h"

#include <type_traits>
#include <utility>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMText.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"

using namespace xercesc;

static_assert(std::is_same_v<XMLCh, GuChar>, "text passes to and from the XML library as it is");

DOMElement* AppendChildElement(DOMNode* parent, GuString tagName)
{
    DOMDocument* document = parent ? parent->getOwnerDocument() : nullptr;
    if (!document)
        return nullptr;
    constexpr GuChar lineFeed[] = {'\n', 0};
    DOMText* text = document->createTextNode(lineFeed);
    DOMElement* element = document->createElement(ThroughNarrowCodePage(std::move(tagName)).c_str());
    parent->appendChild(text);
    parent->appendChild(element);
    return element;
}

void SetElementAttribute(DOMElement* element, GuString name, GuString value)
{
    if (!element)
        return;
    const GuString narrowedValue = ThroughNarrowCodePage(std::move(value));
    element->setAttribute(ThroughNarrowCodePage(std::move(name)).c_str(), narrowedValue.c_str());
}

GuString GuStringFromXMLCh(const XMLCh* text)
{
    return GuString(text, 0);
}

DOMElement* AppendElementWithAttribute(DOMNode* parent, const char* tagName, const char* name, GuString value)
{
    DOMElement* element = AppendChildElement(parent, tagName);
    SetElementAttribute(element, name, std::move(value));
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
