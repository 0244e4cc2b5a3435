// Where identifiers are defined.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

/// Identifiers and the tags that define them. Most of a check's time for references goes into memory that is
/// far away; here one look takes a slot and the identifier itself.
class IdTable
{
public:
    IdTable() : m_slots(64) {}

    bool Has(XmlView id) const { return m_slots[PlaceOf(id, HashOf(id))].begin > 0; }
    /// Keeps a copy of the identifier, unless it is there already: then returns the tag that came with it.
    std::optional<std::size_t> Add(XmlView id, std::size_t markup);

    /// Calls back for every identifier, in the order in which they came.
    template <class Visit>
    void ForEach(Visit visit) const
    {
        for (std::size_t begin = 1; begin < m_text.size();) {
            const XmlView id = &m_text[begin];
            visit(id);
            begin += id.size() + 1;
        }
    }

private:
    struct Slot
    {
        std::size_t hash;
        std::size_t begin; // in the text; 0 where the slot is free
        std::size_t markup;
    };

    static std::size_t HashOf(XmlView id) { return std::hash<XmlView>()(id); }
    std::size_t PlaceOf(XmlView id, std::size_t hash) const;
    void Grow();

    std::vector<Slot> m_slots; // a power of two of them, at most half of them taken
    std::size_t m_count = 0;
    std::vector<XMLCh> m_text = {0}; // of all identifiers, with a null behind each
};

} // namespace tal
