#include "TalAttributeSchemaHost/table/generator/IdentityConstraints.h"

#include <stdexcept>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/table/generator/SchemaNodes.h"

using namespace xercesc;

namespace {

std::vector<std::string> Split(const std::string& text, char separator)
{
    std::vector<std::string> parts(1);
    for (const char character : text) {
        if (character == separator)
            parts.emplace_back();
        else if (character != ' ')
            parts.back() += character;
    }
    return parts;
}

} // namespace

IdentityConstraints::IdentityConstraints(const DOMElement* schema, const DOMElement* root) : m_root(root)
{
    for (const DOMElement* type : Children(schema, "xs:complexType"))
        m_types[Get(type, "name")] = type;
}

void IdentityConstraints::Check()
{
    ExpectChildren(m_root, {"xs:unique", "xs:keyref"});
    for (const DOMElement* constraint : Children(m_root, "xs:unique"))
        Take(constraint, "defines", Get(constraint, "name"));
    for (const DOMElement* constraint : Children(m_root, "xs:keyref"))
        Take(constraint, "refersTo", Get(constraint, "refer"));
    for (const auto& [name, type] : m_types) {
        for (const DOMElement* attribute : AttributesOf(type)) {
            const bool hasFact = !Fact(attribute, "defines").empty() || !Fact(attribute, "refersTo").empty();
            if (hasFact && m_constrained.count(attribute) == 0)
                throw std::runtime_error("no identity constraint for " + Get(attribute, "name") + " of " +
                                         name);
        }
    }
}

/// The types of the elements of a name in some types.
IdentityConstraints::Types IdentityConstraints::Step(const Types& parents, const std::string& name) const
{
    Types types;
    for (const DOMElement* parent : parents) {
        for (const DOMElement* model : Children(parent, "xs:choice")) {
            for (const DOMElement* element : Children(model, "xs:element")) {
                if (Get(element, "name") == name)
                    types.insert(m_types.at(Get(element, "type")));
            }
        }
    }
    return types;
}

IdentityConstraints::Types IdentityConstraints::Selected(std::string path) const
{
    Types types = {m_types.at(Get(m_root, "type"))};
    if (path.rfind(".//", 0) == 0) {
        path.erase(0, 3);
        for (const auto& [name, type] : m_types)
            types.insert(type);
    }
    for (const std::string& name : Split(path, '/'))
        types = Step(types, name);
    if (types.empty())
        throw std::runtime_error("the path " + path + " leads nowhere");
    return types;
}

void IdentityConstraints::Take(const DOMElement* constraint, const std::string& fact, const std::string& kind)
{
    ExpectChildren(constraint, {"xs:selector", "xs:field"});
    const std::string field = Get(Children(constraint, "xs:field").at(0), "xpath");
    for (const std::string& path : Split(Get(Children(constraint, "xs:selector").at(0), "xpath"), '|')) {
        for (const DOMElement* type : Selected(path)) {
            bool agrees = false;
            for (const DOMElement* attribute : AttributesOf(type)) {
                if (field == "@" + Get(attribute, "name") && Fact(attribute, fact) == kind) {
                    m_constrained.insert(attribute);
                    agrees = true;
                }
            }
            if (!agrees)
                throw std::runtime_error("constraint " + Get(constraint, "name") + " and the facts of " +
                                         path + " differ");
        }
    }
}
