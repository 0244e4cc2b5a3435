// A small DOM: as much of one as builders and serializer use, in a fraction of the memory.
#pragma once

#include <array>
#include <cstdint>
#include <unordered_set>

#include "TalAttributeSchemaHost/compact/Arena.h"
#include "TalAttributeSchemaHost/compact/Unsupported.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

class CompactDocument;

/// A node among the children of an element.
class CompactSibling
{
public:
    explicit CompactSibling(CompactDocument& owner) : m_owner(&owner) {}

    CompactDocument& Owner() const { return *m_owner; }
    xercesc::DOMNode* Next() const;
    bool HasParent() const { return m_next != nullptr; }
    /// As the last child so far.
    void BeLast();
    void PutBefore(xercesc::DOMNode& next) { m_next = &next; }

private:
    CompactDocument* m_owner;
    xercesc::DOMNode* m_next = nullptr; // the document when this is the last child
};

/// Text of an element, in one piece. The units are the document's.
class CompactText final : public unsupported::CharacterData, public CompactSibling
{
public:
    CompactText(CompactDocument& owner, const XMLCh* units) : CompactSibling(owner), m_units(units) {}

    NodeType getNodeType() const override { return TEXT_NODE; }
    const XMLCh* getNodeName() const override;
    const XMLCh* getNodeValue() const override { return m_units; }
    const XMLCh* getData() const override { return m_units; }
    xercesc::DOMDocument* getOwnerDocument() const override;
    xercesc::DOMNode* getNextSibling() const override { return Next(); }

private:
    const XMLCh* m_units;
};

/// Name and value are the document's. There is no text node in it, so the serializer must not ask for
/// references to entities ("entities" is false).
class CompactAttribute final : public unsupported::Attribute
{
public:
    CompactAttribute(const XMLCh* name, const XMLCh* value) : m_name(name), m_value(value) {}
    // The interface cannot be copied, but name and value can, and that is all there is.
    CompactAttribute(const CompactAttribute& other) : CompactAttribute(other.m_name, other.m_value) {}
    CompactAttribute& operator=(const CompactAttribute& other)
    {
        m_name = other.m_name;
        m_value = other.m_value;
        return *this;
    }

    NodeType getNodeType() const override { return ATTRIBUTE_NODE; }
    const XMLCh* getNodeName() const override { return m_name; }
    const XMLCh* getName() const override { return m_name; }
    const XMLCh* getNodeValue() const override { return m_value; }
    const XMLCh* getValue() const override { return m_value; }
    bool getSpecified() const override { return true; }

private:
    const XMLCh* m_name;
    const XMLCh* m_value;
};

/// Sorted by name, as in the XML library's own DOM.
class CompactAttributes final : public unsupported::AttributeMap
{
public:
    XMLSize_t getLength() const override { return m_count; }
    xercesc::DOMNode* item(XMLSize_t index) const override
    {
        return index < m_count ? m_items + index : nullptr;
    }
    xercesc::DOMNode* getNamedItem(const XMLCh* name) const override;

private:
    friend class CompactElement;

    CompactAttribute* m_items = nullptr; // the document's
    std::uint32_t m_count = 0;
    std::uint32_t m_capacity = 0;
};

class CompactElement final : public unsupported::Element, public CompactSibling
{
public:
    /// The name is the document's.
    CompactElement(CompactDocument& owner, const XMLCh* name);

    NodeType getNodeType() const override { return ELEMENT_NODE; }
    const XMLCh* getNodeName() const override { return m_name; }
    const XMLCh* getTagName() const override { return m_name; }
    xercesc::DOMDocument* getOwnerDocument() const override;
    xercesc::DOMNode* getFirstChild() const override { return m_first; }
    xercesc::DOMNode* getNextSibling() const override { return Next(); }
    bool hasChildNodes() const override { return m_first != nullptr; }
    bool hasAttributes() const override { return m_attributes.getLength() > 0; }
    xercesc::DOMNamedNodeMap* getAttributes() const override
    {
        return const_cast<CompactAttributes*>(&m_attributes);
    }

    /// Takes elements and texts of the same document that have no parent yet, and no others.
    xercesc::DOMNode* appendChild(xercesc::DOMNode* child) override;
    void setAttribute(const XMLCh* name, const XMLCh* value) override;

    /// For an element that has no attributes yet: makes room for `count` of them.
    void ReserveAttributes(std::size_t count);
    /// Needs room, a name that is not there yet, and `SortAttributes` after the last one: the order is any.
    void AddAttribute(XmlView name, XmlView value);
    void SortAttributes();
    /// As `appendChild`, for an element of this document without a parent.
    void Append(CompactElement& child) { Append(child, child); }

private:
    void Append(xercesc::DOMNode& node, CompactSibling& sibling);
    void MakeRoom();

    const XMLCh* m_name;
    xercesc::DOMNode* m_first = nullptr;
    CompactSibling* m_last = nullptr;
    CompactAttributes m_attributes;
};

/// Owns all of its nodes, names and values: they go with it, all at once. Of the interface's members those
/// that neither builders nor serializer call throw NOT_SUPPORTED_ERR. What makes a node throws
/// `std::bad_alloc` when memory runs out.
class CompactDocument final : public unsupported::Document
{
public:
    CompactDocument() = default;
    CompactDocument(const CompactDocument&) = delete;
    CompactDocument& operator=(const CompactDocument&) = delete;

    NodeType getNodeType() const override { return DOCUMENT_NODE; }
    const XMLCh* getNodeName() const override;
    xercesc::DOMDocument* getOwnerDocument() const override { return nullptr; }
    xercesc::DOMNode* getFirstChild() const override { return m_root; }
    bool hasChildNodes() const override { return m_root != nullptr; }
    xercesc::DOMElement* getDocumentElement() const override { return m_root; }
    const XMLCh* getInputEncoding() const override { return nullptr; }
    const XMLCh* getXmlEncoding() const override { return nullptr; }
    const XMLCh* getXmlVersion() const override;
    bool getXmlStandalone() const override { return false; }

    /// A name that XML forbids raises INVALID_CHARACTER_ERR.
    xercesc::DOMElement* createElement(const XMLCh* name) override;
    xercesc::DOMText* createTextNode(const XMLCh* text) override;

    /// The same without a look at the name.
    CompactElement& MakeElement(XmlView name);
    /// The first element becomes the root.
    void SetRoot(CompactElement& root) { m_root = &root; }

private:
    friend class CompactElement;

    const XMLCh* Copy(XmlView text);
    /// As `Copy`; most values are a few short ones again and again, which are stored once.
    const XMLCh* CopyValue(XmlView value);
    /// The one copy of a name.
    const XMLCh* Intern(XmlView text);
    /// As `createElement` does with a name that it has not met yet.
    const XMLCh* InternChecked(XmlView name);

    Arena m_nodes; // apart from text, so that the attributes of an element stay together
    Arena m_text;
    std::unordered_set<XmlView> m_interned;
    std::array<XmlView, 64> m_recentValues; // short ones
    std::array<XmlView, 64> m_recent; // of these, what was asked for last: a hash takes longer than a look
    CompactElement* m_root = nullptr;
};

} // namespace tal
