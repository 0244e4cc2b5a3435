// Differences as JSON.
#include "tools/talschema/Diff.h"

#include <utility>

using nlohmann::ordered_json;

namespace {

std::string NameOf(const Difference& place)
{
    std::string name = place.name.front();
    for (std::size_t i = 1; i < place.name.size(); ++i)
        name += " = " + place.name[i];
    return name;
}

class DifferenceList
{
public:
    void Add(const Difference& place)
    {
        const std::string name = NameOf(place);
        const std::size_t oldLength = m_oldPointer.size();
        const std::size_t newLength = m_newPointer.size();
        m_path.push_back(name);
        // Names of fields need no escape in a pointer.
        m_oldPointer += "/" + (place.isEntry ? std::to_string(place.before.index) : name);
        m_newPointer += "/" + (place.isEntry ? std::to_string(place.after.index) : name);

        AddItself(place);
        for (const Difference& part : place.parts)
            Add(part);

        m_path.pop_back();
        m_oldPointer.resize(oldLength);
        m_newPointer.resize(newLength);
    }

    ordered_json Take() { return std::move(m_list); }

private:
    void AddItself(const Difference& place)
    {
        const bool onBothSides = !place.IsAdded() && !place.IsRemoved();
        if (onBothSides && !place.isMoved && !place.parts.empty())
            return; // only a place with differences in it

        ordered_json entry;
        entry["kind"] = place.IsAdded()     ? "added"
                        : place.IsRemoved() ? "removed"
                        : place.isMoved     ? "moved"
                                            : "changed";
        entry["section"] = m_path.front();
        entry["path"] = ordered_json::array_t(m_path.begin() + 1, m_path.end());
        if (!place.IsAdded())
            entry["oldPointer"] = m_oldPointer;
        if (!place.IsRemoved())
            entry["newPointer"] = m_newPointer;
        if (!place.isMoved && !place.IsAdded())
            entry["old"] = *place.before.value;
        if (!place.isMoved && !place.IsRemoved())
            entry["new"] = *place.after.value;
        m_list.push_back(std::move(entry));
    }

    std::vector<std::string> m_path;
    std::string m_oldPointer;
    std::string m_newPointer;
    ordered_json m_list = ordered_json::array();
};

} // namespace

ordered_json DifferencesAsJson(const std::vector<Difference>& sections)
{
    DifferenceList list;
    for (const Difference& section : sections)
        list.Add(section);
    return list.Take();
}
