#include "tools/talschema/diff/DiffJson.h"

#include <cstddef>
#include <tuple>
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
    explicit DifferenceList(const ordered_json& before) : m_before(before) {}

    void Add(const Difference& place)
    {
        const std::string name = NameOf(place);
        const std::size_t oldLength = m_oldPointer.size();
        const std::size_t newLength = m_newPointer.size();
        m_path.push_back(name);
        // Names of fields need no escape in a pointer.
        m_oldPointer += "/" + (place.isEntry ? std::to_string(place.before.index) : name);
        m_newPointer += "/" + (place.isEntry ? std::to_string(place.after.index) : name);

        const std::pair<std::size_t, std::size_t> lines = {m_oldLine, m_newLine};
        m_oldLine = place.before.line > 0 ? place.before.line : m_oldLine;
        m_newLine = place.after.line > 0 ? place.after.line : m_newLine;
        if (place.rename)
            AddRename(place);
        AddItself(place);
        for (const Difference& part : place.parts)
            Add(part);

        std::tie(m_oldLine, m_newLine) = lines;
        m_path.pop_back();
        m_oldPointer.resize(oldLength);
        m_newPointer.resize(newLength);
    }

    ordered_json Take() { return std::move(m_list); }

private:
    void AddItself(const Difference& place)
    {
        const bool onBothSides = !place.IsAdded() && !place.IsRemoved();
        if (onBothSides && !place.isMoved && (place.rename || !place.parts.empty()))
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
        AddLines(entry, place);
        if (!place.isMoved && !place.IsAdded())
            entry["old"] = m_before.at(ordered_json::json_pointer(m_oldPointer));
        if (!place.isMoved && !place.IsRemoved())
            entry["new"] = *place.after.value;
        m_list.push_back(std::move(entry));
    }

    void AddRename(const Difference& place)
    {
        const std::string& key = place.after.value->begin().key(); // objects begin with their identifiers
        ordered_json entry = {{"kind", "renamed"},
                              {"section", m_path.front()},
                              {"path", ordered_json::array_t(m_path.begin() + 1, m_path.end())},
                              {"oldPointer", m_oldPointer + "/" + key},
                              {"newPointer", m_newPointer + "/" + key}};
        AddLines(entry, place);
        entry["old"] = place.rename->oldName;
        entry["new"] = place.name.front();
        entry["references"] = place.rename->references;
        m_list.push_back(std::move(entry));
    }

    void AddLines(ordered_json& entry, const Difference& place) const
    {
        if (!place.IsAdded() && m_oldLine > 0)
            entry["oldLine"] = m_oldLine;
        if (!place.IsRemoved() && m_newLine > 0)
            entry["newLine"] = m_newLine;
    }

    const ordered_json& m_before;
    std::size_t m_oldLine = 0; // of the object of a section that the place is in, or 0
    std::size_t m_newLine = 0;
    std::vector<std::string> m_path;
    std::string m_oldPointer;
    std::string m_newPointer;
    ordered_json m_list = ordered_json::array();
};

} // namespace

ordered_json DifferencesAsJson(const std::vector<Difference>& sections, const ordered_json& before)
{
    DifferenceList list(before);
    for (const Difference& section : sections)
        list.Add(section);
    return list.Take();
}
