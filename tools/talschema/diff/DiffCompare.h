// What differs between two schemas.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tools/talschema/diff/DiffRenames.h"

/// A place where two schemas in their JSON form differ: a field of an object, or an entry of a list. It
/// points into both documents, which must outlive it.
struct Difference
{
    struct Side
    {
        const nlohmann::ordered_json* value = nullptr; // null where there is none
        std::size_t index = 0;                         // of an entry, in its list
        std::size_t line = 0;                          // of an entry, where it is known
    };

    bool isEntry = false;
    std::vector<std::string> name; // the key of a field; the values of an entry's first fields, by which it
                                   // is matched
    Side before;
    Side after;
    bool isMoved = false;            // an entry, among those that both lists have
    std::vector<std::string> behind; // the name of the entry before it in the new list; empty at its front
    const Rename* rename = nullptr;  // of an entry whose identifier is new
    std::vector<Difference> parts;   // what differs inside, where both sides have a value

    bool IsAdded() const { return !before.value; }
    bool IsRemoved() const { return !after.value; }
    bool IsChanged() const { return before.value && after.value && (!(isMoved || rename) || !parts.empty()); }
};

/// The sections that differ, in the order of the document. Entries are matched by what identifies them, equal
/// ones in order. `before` has the new identifiers of those in `renames`, which must outlive the result.
std::vector<Difference> CompareSchemas(const nlohmann::ordered_json& before,
                                       const nlohmann::ordered_json& after, const Renames& renames = {});
