#include "TalAttributeSchemaHost/table/KnownAttributes.h"

#include <xercesc/util/XMLString.hpp>

#include "TalAttributeSchemaHost/table/FormatLookup.h"

namespace tal {

void KnownAttributes::Take(const ElementType& type, const std::vector<XmlAttribute>& attributes)
{
    m_type = &type;
    m_attributes = &attributes;
    m_byRule.assign(type.attributes.count, nullptr);
    m_rules.clear();
    m_others.clear();
    const std::size_t count = type.attributes.count;
    std::size_t rule = 0; // where the one before was found: attributes often come in the order of the rules
    for (const XmlAttribute& attribute : attributes) {
        std::size_t tried = 0;
        while (tried < count && !Matches(type, type.attributes.first[rule], attribute.name)) {
            ++tried;
            rule = rule + 1 < count ? rule + 1 : 0;
        }
        m_rules.push_back(tried < count ? rule : count);
        if (tried == count)
            continue;
        const XmlAttribute*& known = m_byRule[rule];
        if (!known || xercesc::XMLString::compareString(attribute.name, known->name) < 0)
            known = &attribute;
    }
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        if (m_rules[i] == count || m_byRule[m_rules[i]] != &attributes[i])
            m_others.push_back(&attributes[i]);
    }
}

const XmlAttribute* KnownAttributes::FindValue() const
{
    for (const AttributeRule& rule : m_type->attributes) {
        const XmlAttribute* const attribute = rule.notRead == FindingId::None ? Find(rule) : nullptr;
        // Where the reader is lenient about names, an empty value changes nothing.
        if (attribute && (!attribute->value.empty() || m_type->attributeNames != Match::IgnoreCase))
            return attribute;
    }
    return nullptr;
}

} // namespace tal
