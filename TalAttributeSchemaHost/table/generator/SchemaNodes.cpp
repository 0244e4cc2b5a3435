#include "TalAttributeSchemaHost/table/generator/SchemaNodes.h"

#include <algorithm>
#include <stdexcept>

#include <xercesc/dom/DOMNamedNodeMap.hpp>

using namespace xercesc;

namespace {

const std::string kFactPrefix = "tal:";

std::string Text(const XMLCh* text)
{
    std::string narrow;
    for (; text && *text; ++text)
        narrow += static_cast<char>(*text);
    return narrow;
}

} // namespace

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
