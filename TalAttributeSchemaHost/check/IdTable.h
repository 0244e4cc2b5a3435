// Where identifiers are defined.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <vector>

#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

/// Identifiers and the tags that define them. Most of a check's time for references goes into memory that is
/// far away; here one look costs an entry and the identifier itself.
class IdTable
{
public:
    struct Entry
    {
        XmlView id; // without data where the entry is free
        std::size_t hash;
        std::size_t markup;
    };

    IdTable() : m_entries(64) {}

    /// Null when there is none of that name.
    const Entry* Find(XmlView id) const;
    /// Keeps a copy of the identifier, unless it is there already: then returns its entry, otherwise null.
    const Entry* Add(XmlView id, std::size_t markup);

    /// Calls back for every entry, in no order.
    template <class Visit>
    void ForEach(Visit visit) const
    {
        for (const Entry& entry : m_entries) {
            if (entry.id.data())
                visit(entry);
        }
    }

private:
    std::size_t PlaceOf(XmlView id, std::size_t hash) const;
    void Grow();

    std::vector<Entry> m_entries; // a power of two of them, at most half of them taken
    std::size_t m_count = 0;
    std::pmr::monotonic_buffer_resource m_text;
};

} // namespace tal
