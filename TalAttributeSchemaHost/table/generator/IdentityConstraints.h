// The identity constraints of the XSD beside its facts.
#pragma once

#include <map>
#include <set>
#include <string>

#include <xercesc/dom/DOMElement.hpp>

/// Identity constraints tell validators what "tal:defines" and "tal:refersTo" tell the table. Neither may say
/// what the other does not.
class IdentityConstraints
{
public:
    /// Both must outlive the object.
    IdentityConstraints(const xercesc::DOMElement* schema, const xercesc::DOMElement* root);

    /// Throws where they differ.
    void Check();

private:
    using Types = std::set<const xercesc::DOMElement*>;

    Types Step(const Types& parents, const std::string& name) const;
    Types Selected(std::string path) const;
    void Take(const xercesc::DOMElement* constraint, const std::string& fact, const std::string& kind);

    const xercesc::DOMElement* m_root;
    std::map<std::string, const xercesc::DOMElement*> m_types;
    std::set<const xercesc::DOMElement*> m_constrained; // attributes
};
