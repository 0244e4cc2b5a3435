// How every builder reads the DOM: the name test, the child walk, the attribute loop and the named attribute.
#pragma once

#include <optional>

#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/format/NodeName.h"

/// The value of an XML attribute; becomes a string where one is wanted.
class AttributeValue
{
public:
    explicit AttributeValue(const xercesc::DOMAttr* attribute) : m_attribute(attribute) {}
    operator GuString() const { return GuStringFromXMLCh(Text()); }

private:
    // As a rule the value is one text node. Asking that node spares the XML library a dynamic cast, which
    // takes longer than everything else that happens to a value.
    const XMLCh* Text() const
    {
        const xercesc::DOMNode* text = m_attribute->getFirstChild();
        const bool only =
            text && text->getNodeType() == xercesc::DOMNode::TEXT_NODE && !text->getNextSibling();
        return only ? text->getNodeValue() : m_attribute->getValue();
    }

    const xercesc::DOMAttr* m_attribute;
};

/// False for null and for everything that is no element.
inline bool IsElementNamed(const xercesc::DOMNode* node, const char* name)
{
    return node && node->getNodeType() == xercesc::DOMNode::ELEMENT_NODE &&
           NodeName(node->getNodeName()) == name;
}

/// Calls `visit(NodeName, DOMNode*)` for every child element, in document order.
template <class Visit>
void ForEachChildElement(xercesc::DOMNode* node, Visit&& visit)
{
    for (xercesc::DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) {
        if (child->getNodeType() == xercesc::DOMNode::ELEMENT_NODE)
            visit(NodeName(child->getNodeName()), child);
    }
}

/// Calls `visit(DOMNode*)` for every child element of that name, in document order.
template <class Visit>
void ForEachChildElement(xercesc::DOMNode* node, const char* name, Visit&& visit)
{
    ForEachChildElement(node, [&](NodeName childName, xercesc::DOMNode* child) {
        if (childName == name)
            visit(child);
    });
}

/// Calls `visit(NodeName, AttributeValue)` for every XML attribute, in the order of the attribute map.
template <class Visit>
void ForEachAttribute(const xercesc::DOMNode* node, Visit&& visit)
{
    if (!node->hasAttributes())
        return;
    const xercesc::DOMNamedNodeMap* attributes = node->getAttributes();
    const XMLSize_t count = attributes->getLength();
    for (XMLSize_t i = 0; i < count; ++i) {
        const auto* attribute = static_cast<const xercesc::DOMAttr*>(attributes->item(i));
        visit(NodeName(attribute->getName()), AttributeValue(attribute));
    }
}

/// Calls `visit(AttributeValue)` for the XML attribute of that name when there is one.
template <class Visit>
void ForEachAttribute(const xercesc::DOMNode* node, const char* name, Visit&& visit)
{
    ForEachAttribute(node, [&](NodeName attributeName, AttributeValue value) {
        if (attributeName == name)
            visit(value);
    });
}

/// Looks one XML attribute of an element up by its name.
inline std::optional<GuString> NamedAttribute(const xercesc::DOMNode* element, const char* name)
{
    const xercesc::DOMNode* node = element->getAttributes()->getNamedItem(GuString(name, 0).c_str());
    if (!node || node->getNodeType() != xercesc::DOMNode::ATTRIBUTE_NODE)
        return std::nullopt;
    return AttributeValue(static_cast<const xercesc::DOMAttr*>(node));
}
