// What differs between two schemas, and its two views.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

/// A place where two schemas in their JSON form differ: a field of an object, or an entry of a list. It
/// points into both documents, which must outlive it.
struct Difference
{
    struct Side
    {
        const nlohmann::ordered_json* value = nullptr; // null where there is none
        std::size_t index = 0;                         // of an entry, in its list
    };

    bool isEntry = false;
    std::vector<std::string> name; // the key of a field; the values of an entry's first fields, by which it
                                   // is matched
    Side before;
    Side after;
    bool isMoved = false;          // an entry, among those that both lists have
    std::vector<Difference> parts; // what differs inside, where both sides have a value

    bool IsAdded() const { return !before.value; }
    bool IsRemoved() const { return !after.value; }
    bool IsChanged() const { return before.value && after.value && (!isMoved || !parts.empty()); }
};

/// The sections that differ, in the order of the document. Entries are matched by what identifies them, equal
/// ones in order.
std::vector<Difference> CompareSchemas(const nlohmann::ordered_json& before,
                                       const nlohmann::ordered_json& after);

/// For people: grouped by section, with counts. Empty without differences.
std::string DifferencesAsText(const std::vector<Difference>& sections, bool coloured);

/// For programs: a flat array. `oldPointer` and `newPointer` say where a value stands in the JSON of either
/// schema.
nlohmann::ordered_json DifferencesAsJson(const std::vector<Difference>& sections);
