// What the XML library's interfaces of a DOM have and neither builders nor serializer call: every one of
// these throws NOT_SUPPORTED_ERR.
#pragma once

#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMText.hpp>

namespace tal::unsupported {

/// For what returns anything at all.
struct Nothing
{
    Nothing() { throw xercesc::DOMException(xercesc::DOMException::NOT_SUPPORTED_ERR); }
    template <class T>
    operator T() const
    {
        return T();
    }
};

/// `Interface` is `DOMNode` or derives from it.
template <class Interface>
class Node : public Interface
{
public:
    using Text = const XMLCh*;
    using Other = const xercesc::DOMNode*;

    Text getNodeValue() const override { return nullptr; }
    xercesc::DOMNode* getParentNode() const override { return Nothing(); }
    xercesc::DOMNodeList* getChildNodes() const override { return Nothing(); }
    xercesc::DOMNode* getFirstChild() const override { return nullptr; }
    xercesc::DOMNode* getLastChild() const override { return Nothing(); }
    xercesc::DOMNode* getPreviousSibling() const override { return Nothing(); }
    xercesc::DOMNode* getNextSibling() const override { return nullptr; }
    xercesc::DOMNamedNodeMap* getAttributes() const override { return nullptr; }
    xercesc::DOMDocument* getOwnerDocument() const override { return Nothing(); }
    xercesc::DOMNode* cloneNode(bool) const override { return Nothing(); }
    xercesc::DOMNode* insertBefore(xercesc::DOMNode*, xercesc::DOMNode*) override { return Nothing(); }
    xercesc::DOMNode* replaceChild(xercesc::DOMNode*, xercesc::DOMNode*) override { return Nothing(); }
    xercesc::DOMNode* removeChild(xercesc::DOMNode*) override { return Nothing(); }
    xercesc::DOMNode* appendChild(xercesc::DOMNode*) override { return Nothing(); }
    bool hasChildNodes() const override { return Nothing(); }
    void setNodeValue(Text) override { Nothing(); }
    void normalize() override { Nothing(); }
    bool isSupported(Text, Text) const override { return Nothing(); }
    // Nothing here knows namespaces, as in a DOM that was parsed without them.
    Text getNamespaceURI() const override { return nullptr; }
    Text getPrefix() const override { return nullptr; }
    Text getLocalName() const override { return nullptr; }
    void setPrefix(Text) override { Nothing(); }
    bool hasAttributes() const override { return false; }
    bool isSameNode(Other other) const override { return other == this; }
    bool isEqualNode(Other) const override { return Nothing(); }
    void* setUserData(Text, void*, xercesc::DOMUserDataHandler*) override { return Nothing(); }
    void* getUserData(Text) const override { return Nothing(); }
    Text getBaseURI() const override { return Nothing(); }
    short compareDocumentPosition(Other) const override { return Nothing(); }
    Text getTextContent() const override { return Nothing(); }
    void setTextContent(Text) override { Nothing(); }
    Text lookupPrefix(Text) const override { return Nothing(); }
    bool isDefaultNamespace(Text) const override { return Nothing(); }
    Text lookupNamespaceURI(Text) const override { return Nothing(); }
    void* getFeature(Text, Text) const override { return Nothing(); }
    void release() override { Nothing(); }
};

class Attribute : public Node<xercesc::DOMAttr>
{
public:
    void setValue(Text) override { Nothing(); }
    xercesc::DOMElement* getOwnerElement() const override { return Nothing(); }
    bool isId() const override { return Nothing(); }
    const xercesc::DOMTypeInfo* getSchemaTypeInfo() const override { return Nothing(); }
};

class CharacterData : public Node<xercesc::DOMText>
{
public:
    XMLSize_t getLength() const override { return Nothing(); }
    Text substringData(XMLSize_t, XMLSize_t) const override { return Nothing(); }
    void appendData(Text) override { Nothing(); }
    void insertData(XMLSize_t, Text) override { Nothing(); }
    void deleteData(XMLSize_t, XMLSize_t) override { Nothing(); }
    void replaceData(XMLSize_t, XMLSize_t, Text) override { Nothing(); }
    void setData(Text) override { Nothing(); }
    xercesc::DOMText* splitText(XMLSize_t) override { return Nothing(); }
    bool getIsElementContentWhitespace() const override { return Nothing(); }
    Text getWholeText() const override { return Nothing(); }
    xercesc::DOMText* replaceWholeText(Text) override { return Nothing(); }
    bool isIgnorableWhitespace() const override { return Nothing(); }
};

class Element : public Node<xercesc::DOMElement>
{
public:
    Text getAttribute(Text) const override { return Nothing(); }
    xercesc::DOMAttr* getAttributeNode(Text) const override { return Nothing(); }
    xercesc::DOMNodeList* getElementsByTagName(Text) const override { return Nothing(); }
    xercesc::DOMAttr* setAttributeNode(xercesc::DOMAttr*) override { return Nothing(); }
    xercesc::DOMAttr* removeAttributeNode(xercesc::DOMAttr*) override { return Nothing(); }
    void removeAttribute(Text) override { Nothing(); }
    Text getAttributeNS(Text, Text) const override { return Nothing(); }
    void setAttributeNS(Text, Text, Text) override { Nothing(); }
    void removeAttributeNS(Text, Text) override { Nothing(); }
    xercesc::DOMAttr* getAttributeNodeNS(Text, Text) const override { return Nothing(); }
    xercesc::DOMAttr* setAttributeNodeNS(xercesc::DOMAttr*) override { return Nothing(); }
    xercesc::DOMNodeList* getElementsByTagNameNS(Text, Text) const override { return Nothing(); }
    bool hasAttribute(Text) const override { return Nothing(); }
    bool hasAttributeNS(Text, Text) const override { return Nothing(); }
    void setIdAttribute(Text, bool) override { Nothing(); }
    void setIdAttributeNS(Text, Text, bool) override { Nothing(); }
    void setIdAttributeNode(const xercesc::DOMAttr*, bool) override { Nothing(); }
    const xercesc::DOMTypeInfo* getSchemaTypeInfo() const override { return Nothing(); }
    xercesc::DOMElement* getFirstElementChild() const override { return Nothing(); }
    xercesc::DOMElement* getLastElementChild() const override { return Nothing(); }
    xercesc::DOMElement* getPreviousElementSibling() const override { return Nothing(); }
    xercesc::DOMElement* getNextElementSibling() const override { return Nothing(); }
    XMLSize_t getChildElementCount() const override { return Nothing(); }
};

class AttributeMap : public xercesc::DOMNamedNodeMap
{
public:
    using Text = const XMLCh*;

    xercesc::DOMNode* setNamedItem(xercesc::DOMNode*) override { return Nothing(); }
    xercesc::DOMNode* removeNamedItem(Text) override { return Nothing(); }
    xercesc::DOMNode* getNamedItemNS(Text, Text) const override { return Nothing(); }
    xercesc::DOMNode* setNamedItemNS(xercesc::DOMNode*) override { return Nothing(); }
    xercesc::DOMNode* removeNamedItemNS(Text, Text) override { return Nothing(); }
};

class Document : public Node<xercesc::DOMDocument>
{
public:
    xercesc::DOMDocumentFragment* createDocumentFragment() override { return Nothing(); }
    xercesc::DOMComment* createComment(Text) override { return Nothing(); }
    xercesc::DOMCDATASection* createCDATASection(Text) override { return Nothing(); }
    xercesc::DOMProcessingInstruction* createProcessingInstruction(Text, Text) override { return Nothing(); }
    xercesc::DOMAttr* createAttribute(Text) override { return Nothing(); }
    xercesc::DOMEntityReference* createEntityReference(Text) override { return Nothing(); }
    xercesc::DOMDocumentType* getDoctype() const override { return Nothing(); }
    xercesc::DOMImplementation* getImplementation() const override { return Nothing(); }
    xercesc::DOMNodeList* getElementsByTagName(Text) const override { return Nothing(); }
    xercesc::DOMNode* importNode(Other, bool) override { return Nothing(); }
    xercesc::DOMElement* createElementNS(Text, Text) override { return Nothing(); }
    xercesc::DOMAttr* createAttributeNS(Text, Text) override { return Nothing(); }
    xercesc::DOMNodeList* getElementsByTagNameNS(Text, Text) const override { return Nothing(); }
    xercesc::DOMElement* getElementById(Text) const override { return Nothing(); }
    void setXmlStandalone(bool) override { Nothing(); }
    void setXmlVersion(Text) override { Nothing(); }
    Text getDocumentURI() const override { return Nothing(); }
    void setDocumentURI(Text) override { Nothing(); }
    bool getStrictErrorChecking() const override { return Nothing(); }
    void setStrictErrorChecking(bool) override { Nothing(); }
    xercesc::DOMNode* renameNode(xercesc::DOMNode*, Text, Text) override { return Nothing(); }
    xercesc::DOMNode* adoptNode(xercesc::DOMNode*) override { return Nothing(); }
    void normalizeDocument() override { Nothing(); }
    xercesc::DOMConfiguration* getDOMConfig() const override { return Nothing(); }
    xercesc::DOMEntity* createEntity(Text) override { return Nothing(); }
    xercesc::DOMDocumentType* createDocumentType(Text) override { return Nothing(); }
    xercesc::DOMNotation* createNotation(Text) override { return Nothing(); }
    xercesc::DOMElement* createElementNS(Text, Text, const XMLFileLoc, const XMLFileLoc) override
    {
        return Nothing();
    }
    xercesc::DOMXPathExpression* createExpression(Text, const xercesc::DOMXPathNSResolver*) override
    {
        return Nothing();
    }
    xercesc::DOMXPathNSResolver* createNSResolver(Other) override { return Nothing(); }
    xercesc::DOMXPathResult* evaluate(Text, Other, const xercesc::DOMXPathNSResolver*,
                                      xercesc::DOMXPathResult::ResultType, xercesc::DOMXPathResult*) override
    {
        return Nothing();
    }
    xercesc::DOMNodeIterator* createNodeIterator(xercesc::DOMNode*, xercesc::DOMNodeFilter::ShowType,
                                                 xercesc::DOMNodeFilter*, bool) override
    {
        return Nothing();
    }
    xercesc::DOMTreeWalker* createTreeWalker(xercesc::DOMNode*, xercesc::DOMNodeFilter::ShowType,
                                             xercesc::DOMNodeFilter*, bool) override
    {
        return Nothing();
    }
    xercesc::DOMRange* createRange() override { return Nothing(); }
};

} // namespace tal::unsupported
