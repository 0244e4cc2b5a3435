// Objects that have another identifier in the new schema and are the same otherwise.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

/// What became of an identifier.
struct Rename
{
    std::string oldName;
    std::size_t references = 0; // that follow it
};

/// By the section and the new identifier.
using Renames = std::map<std::string, std::map<std::string, Rename>>;

struct FollowedRenames
{
    Renames renames;
    std::optional<nlohmann::ordered_json> before; // with the new identifiers, where there are any
};

/// Finds the objects of `before` that stand in `after` under an identifier that is new there, where no
/// reference names the old one any more, and gives them and the references to them that identifier. Objects
/// that say nothing but their identifiers, and those that have a double, are not taken for each other.
FollowedRenames FollowRenames(const nlohmann::ordered_json& before, const nlohmann::ordered_json& after);
