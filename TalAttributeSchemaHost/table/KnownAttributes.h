// Which attributes of an element are read as which rules say.
#pragma once

#include <cstddef>
#include <vector>

#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"

namespace tal {

/// Looks at the attributes of one element at a time.
class KnownAttributes
{
public:
    /// Forgets what it had. `attributes` must live as long as anybody asks for them.
    void Take(const ElementType& type, const std::vector<XmlAttribute>& attributes);

    const std::vector<XmlAttribute>& All() const { return *m_attributes; }
    /// The attribute that is read as a rule of the type says, or null. Of several spellings the reader meets
    /// the first one in the order of character codes.
    const XmlAttribute* Find(const AttributeRule& rule) const
    {
        return m_byRule[static_cast<std::size_t>(&rule - m_type->attributes.first)];
    }
    /// The attribute whose value the element gives to what it is read into, or null when it gives none.
    const XmlAttribute* FindValue() const;
    /// Those that are read as no rule says, in their order.
    const std::vector<const XmlAttribute*>& Others() const { return m_others; }

private:
    const ElementType* m_type = nullptr;
    const std::vector<XmlAttribute>* m_attributes = nullptr;
    std::vector<const XmlAttribute*> m_byRule;
    std::vector<std::size_t> m_rules; // of the attributes; their number where no rule fits
    std::vector<const XmlAttribute*> m_others;
};

} // namespace tal
