#include "TalAttributeSchemaHost/check/IdTable.h"

#include <functional>
#include <utility>

namespace tal {

const IdTable::Entry* IdTable::Find(XmlView id) const
{
    const Entry& entry = m_entries[PlaceOf(id, std::hash<XmlView>()(id))];
    return entry.id.data() ? &entry : nullptr;
}

const IdTable::Entry* IdTable::Add(XmlView id, std::size_t markup)
{
    const std::size_t hash = std::hash<XmlView>()(id);
    Entry* entry = &m_entries[PlaceOf(id, hash)];
    if (entry->id.data())
        return entry;
    if (2 * (m_count + 1) > m_entries.size()) {
        Grow();
        entry = &m_entries[PlaceOf(id, hash)];
    }
    auto* const text = static_cast<XMLCh*>(m_text.allocate(id.size() * sizeof(XMLCh), alignof(XMLCh)));
    id.copy(text, id.size());
    *entry = {{text, id.size()}, hash, markup};
    ++m_count;
    return nullptr;
}

/// Where the identifier is, or would be.
std::size_t IdTable::PlaceOf(XmlView id, std::size_t hash) const
{
    const std::size_t mask = m_entries.size() - 1;
    std::size_t place = hash & mask;
    while (m_entries[place].id.data() && (m_entries[place].hash != hash || m_entries[place].id != id))
        place = (place + 1) & mask;
    return place;
}

void IdTable::Grow()
{
    const std::vector<Entry> old = std::exchange(m_entries, std::vector<Entry>(2 * m_entries.size()));
    for (const Entry& entry : old) {
        if (entry.id.data())
            m_entries[PlaceOf(entry.id, entry.hash)] = entry;
    }
}

} // namespace tal
