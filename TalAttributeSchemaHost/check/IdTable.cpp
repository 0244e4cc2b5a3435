#include "TalAttributeSchemaHost/check/IdTable.h"

#include <utility>

namespace tal {

std::optional<std::size_t> IdTable::Add(XmlView id, std::size_t markup)
{
    const std::size_t hash = HashOf(id);
    std::size_t place = PlaceOf(id, hash);
    if (m_slots[place].begin > 0)
        return m_slots[place].markup;
    if (2 * (m_count + 1) > m_slots.size()) {
        Grow();
        place = PlaceOf(id, hash);
    }
    m_slots[place] = {hash, m_text.size(), markup};
    m_text.insert(m_text.end(), id.begin(), id.end());
    m_text.push_back(0);
    ++m_count;
    return std::nullopt;
}

/// Where the identifier is, or would be.
std::size_t IdTable::PlaceOf(XmlView id, std::size_t hash) const
{
    const auto isOther = [&](const Slot& slot) {
        return slot.begin > 0 && (slot.hash != hash || &m_text[slot.begin] != id);
    };
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = hash & mask;
    while (isOther(m_slots[place]))
        place = (place + 1) & mask;
    return place;
}

void IdTable::Grow()
{
    const std::vector<Slot> old = std::exchange(m_slots, std::vector<Slot>(2 * m_slots.size()));
    for (const Slot& slot : old) {
        if (slot.begin > 0)
            m_slots[PlaceOf(&m_text[slot.begin], slot.hash)] = slot;
    }
}

} // namespace tal
