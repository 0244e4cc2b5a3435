// A parsed document as plain data: elements with their attributes.
#pragma once

#include <cctype>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "TalAttributeSchemaHost/file/Load.h"
#include "TalAttributeSchemaReader/model/genutl/GuString.h"

struct Element
{
    std::string name;
    std::map<std::string, std::string> attributes;
    std::vector<Element> children;
    bool outOfEntity = false;
};

/// Everything in one byte, or a reference to its number.
inline std::string Narrow(const XMLCh* text)
{
    const GuString wide(text);
    std::string narrow;
    for (std::size_t i = 0; i < wide.GetLength(); ++i) {
        const unsigned unit = wide.c_str()[i];
        if (unit < 0x80)
            narrow += static_cast<char>(unit);
        else
            narrow += "\\u" + std::to_string(unit);
    }
    return narrow;
}

inline void AddChildren(const xercesc::DOMNode* node, Element& element, bool outOfEntity);

inline Element ToElement(const xercesc::DOMNode* node, bool outOfEntity = false)
{
    Element element{Narrow(node->getNodeName()), {}, {}, outOfEntity};
    const xercesc::DOMNamedNodeMap* attributes = node->getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
        element.attributes[Narrow(attributes->item(i)->getNodeName())] =
            Narrow(attributes->item(i)->getNodeValue());
    AddChildren(node, element, outOfEntity);
    return element;
}

inline void AddChildren(const xercesc::DOMNode* node, Element& element, bool outOfEntity)
{
    for (const xercesc::DOMNode* child = node->getFirstChild(); child; child = child->getNextSibling()) {
        if (child->getNodeType() == xercesc::DOMNode::ELEMENT_NODE)
            element.children.push_back(ToElement(child, outOfEntity));
        else if (child->getNodeType() == xercesc::DOMNode::ENTITY_REFERENCE_NODE)
            AddChildren(child, element, true);
    }
}

/// The document as the library's parser delivers it, or nothing when the parser has anything to say.
inline std::optional<Element> Parse(const std::filesystem::path& file)
{
    struct Listener : xercesc::HandlerBase
    {
        void warning(const xercesc::SAXParseException&) override { silent = false; }
        void error(const xercesc::SAXParseException&) override { silent = false; }
        void fatalError(const xercesc::SAXParseException&) override { silent = false; }
        bool silent = true;
    } listener;
    xercesc::SecurityManager securityManager;
    xercesc::XercesDOMParser parser;
    parser.setDoNamespaces(false);
    parser.setValidationScheme(xercesc::XercesDOMParser::Val_Auto);
    parser.setSecurityManager(&securityManager);
    parser.setErrorHandler(&listener);
    for (const tal::Finding& finding : tal::LoadSchema(file, {true, false}).findings) {
        if (finding.id == tal::FindingId::Expansion) // this parser has no bounds and would not end
            return std::nullopt;
    }
    try {
        parser.parse(file.c_str());
    } catch (const xercesc::DOMException&) { // a version of XML that it does not know
        return std::nullopt;
    }
    if (!listener.silent)
        return std::nullopt;
    return ToElement(parser.getDocument()->getDocumentElement());
}

/// With every character that is neither letter nor digit as a reference to its number.
inline std::string ToText(const Element& element)
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
