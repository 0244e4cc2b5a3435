#include "tools/talschema/diff/DiffCompare.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <utility>

using nlohmann::ordered_json;

namespace {

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

using Fields = std::vector<std::string>;
using Key = std::vector<std::string>;
using Indices = std::vector<std::size_t>;

// What tells the entries of a list apart: the fields of the first are matched first; those of the last name
// the entry. Names of options, readers and rules come again, and then their values tell which is which. In a
// list that is not named here no field tells, only the whole value.
const std::vector<Fields>& IdentitiesIn(const std::string& list)
{
    static const std::vector<Fields> wholeValue = {{}};
    static const std::map<std::string, std::vector<Fields>> identities = {
        {"attributes", {{"id"}}},
        {"files", {{"id"}}},
        {"attributeGroups", {{"id"}}},
        {"entities", {{"typeName"}}},
        {"options", {{"name", "value"}, {"name"}}},
        {"readers", {{"name", "value"}, {"name"}}},
        {"rules", {{"name", "value"}, {"name"}}},
        {"children", {{"name", "value"}}},
        {"loadCaseTemplates", {{"conditionName", "conditionValue"}}},
        {"folders", {{"name"}}},
    };
    const auto found = identities.find(list);
    return found == identities.end() ? wholeValue : found->second;
}

std::string TextOf(const ordered_json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

Key KeyOf(const ordered_json& entry, const Fields& fields)
{
    if (fields.empty())
        return {TextOf(entry)};
    Key key;
    for (const std::string& field : fields)
        key.push_back(entry.at(field).get<std::string>());
    return key;
}

Key NameOf(const ordered_json& entry, const std::vector<Fields>& identities)
{
    if (identities.back().empty() && entry.is_object() && !entry.empty())
        return {TextOf(entry.front())};
    return KeyOf(entry, identities.back());
}

/// Which entries of two lists belong together, `kNone` for those that stand alone.
class Matching
{
public:
    Matching(const ordered_json& before, const ordered_json& after, const std::vector<Fields>& identities)
        : m_before(before), m_after(after), m_afterOf(before.size(), kNone), m_beforeOf(after.size(), kNone)
    {
        for (const Fields& fields : identities)
            Match(fields);
    }

    const Indices& AfterOf() const { return m_afterOf; }
    const Indices& BeforeOf() const { return m_beforeOf; }

private:
    void Match(const Fields& fields)
    {
        std::multimap<Key, std::size_t> open; // equal keys stay in order
        for (std::size_t i = 0; i < m_before.size(); ++i) {
            if (m_afterOf[i] == kNone)
                open.emplace(KeyOf(m_before[i], fields), i);
        }
        for (std::size_t i = 0; i < m_after.size(); ++i) {
            if (m_beforeOf[i] != kNone)
                continue;
            const Key key = KeyOf(m_after[i], fields);
            const auto first = open.lower_bound(key);
            if (first == open.end() || first->first != key)
                continue;
            m_beforeOf[i] = first->second;
            m_afterOf[first->second] = i;
            open.erase(first);
        }
    }

    const ordered_json& m_before;
    const ordered_json& m_after;
    Indices m_afterOf;
    Indices m_beforeOf;
};

/// Marks the members of a longest increasing subsequence; `kNone` never belongs to it.
std::vector<bool> LongestIncreasingSubsequence(const Indices& values)
{
    Indices ends; // of the subsequences of length 1, 2, ...: where the one with the least last value ends
    Indices previous(values.size(), kNone);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (values[i] == kNone)
            continue;
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), values[i],
                             [&](std::size_t end, std::size_t value) { return values[end] < value; });
        if (place != ends.begin())
            previous[i] = *std::prev(place);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<bool> members(values.size());
    for (std::size_t i = ends.empty() ? kNone : ends.back(); i != kNone; i = previous[i])
        members[i] = true;
    return members;
}

/// True for null, and for an empty storage and empty creation rules: what is not there is written as an empty
/// element, so that a document would differ from its own rewrite.
bool IsNothing(const std::string& key, const ordered_json& value)
{
    if (value.is_null())
        return true;
    const auto isEmpty = [](const ordered_json& part) {
        return part.is_string() ? part.get_ref<const std::string&>().empty() : part.empty();
    };
    return (key == "storage" || key == "creationRules") && std::all_of(value.begin(), value.end(), isEmpty);
}

class Comparison
{
public:
    explicit Comparison(const Renames& renames) : m_renames(renames) {}

    // Objects of one kind always have the same fields.
    std::vector<Difference> CompareObjects(const ordered_json& before, const ordered_json& after) const
    {
        std::vector<Difference> differences;
        for (const auto& [key, value] : before.items()) {
            const ordered_json& newValue = after.at(key);
            Difference field;
            field.name = {key};
            field.before.value = IsNothing(key, value) ? nullptr : &value;
            field.after.value = IsNothing(key, newValue) ? nullptr : &newValue;
            if (Differs(field))
                differences.push_back(std::move(field));
        }
        return differences;
    }

private:
    bool Differs(Difference& place) const;
    std::vector<Difference> CompareLists(const std::string& list, const ordered_json& before,
                                         const ordered_json& after) const;
    const Rename* RenameOf(const std::string& list, const ordered_json& entry) const;

    const Renames& m_renames;
};

const Rename* Comparison::RenameOf(const std::string& list, const ordered_json& entry) const
{
    const auto section = m_renames.find(list);
    if (section == m_renames.end())
        return nullptr;
    const auto found = section->second.find(NameOf(entry, IdentitiesIn(list)).front());
    return found == section->second.end() ? nullptr : &found->second;
}

// Finds the parts of a place, and whether it differs at all.
bool Comparison::Differs(Difference& place) const
{
    const ordered_json* const before = place.before.value;
    const ordered_json* const after = place.after.value;
    if (!before || !after)
        return before != after;
    if (place.isEntry && *before == *after) // as nearly always
        return place.isMoved || place.rename;
    if (before->is_array())
        place.parts = CompareLists(place.name.front(), *before, *after);
    else if (before->is_object())
        place.parts = CompareObjects(*before, *after);
    else if (*before != *after)
        return true;
    return place.isMoved || place.rename || !place.parts.empty();
}

std::vector<Difference> Comparison::CompareLists(const std::string& list, const ordered_json& before,
                                                 const ordered_json& after) const
{
    const std::vector<Fields>& identities = IdentitiesIn(list);
    const Matching matching(before, after, identities);
    const Indices& afterOf = matching.AfterOf();
    const Indices& beforeOf = matching.BeforeOf();
    const std::vector<bool> stays = LongestIncreasingSubsequence(beforeOf);

    std::vector<Difference> differences;
    const auto compareEntry = [&](std::size_t oldIndex, std::size_t newIndex, bool moved) {
        Difference entry;
        entry.isEntry = true;
        if (oldIndex != kNone)
            entry.before = {&before[oldIndex], oldIndex};
        if (newIndex != kNone)
            entry.after = {&after[newIndex], newIndex};
        entry.isMoved = moved;
        if (oldIndex != kNone && newIndex != kNone)
            entry.rename = RenameOf(list, after[newIndex]);
        if (Differs(entry)) {
            entry.name = NameOf(entry.before.value ? *entry.before.value : *entry.after.value, identities);
            if (moved && newIndex > 0)
                entry.behind = NameOf(after[newIndex - 1], identities);
            differences.push_back(std::move(entry));
        }
    };

    // A removed entry comes after the one that stays before it.
    std::size_t passed = 0;
    const auto passRemoved = [&] {
        for (; passed < before.size(); ++passed) {
            if (afterOf[passed] == kNone)
                compareEntry(passed, kNone, false);
            else if (stays[afterOf[passed]])
                return;
        }
    };
    passRemoved();
    for (std::size_t i = 0; i < after.size(); ++i) {
        compareEntry(beforeOf[i], i, beforeOf[i] != kNone && !stays[i]);
        if (stays[i]) {
            ++passed;
            passRemoved();
        }
    }
    return differences;
}

} // namespace

std::vector<Difference> CompareSchemas(const ordered_json& before, const ordered_json& after,
                                       const Renames& renames)
{
    return Comparison(renames).CompareObjects(before, after);
}
