// The view of `talschema show` for people.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

/// The JSON form of a schema as a tree: counts first, then one section after the other. Empty values are left
/// out where their absence says the same. A field without a title of its own is shown under its key.
std::string SchemaAsTree(const nlohmann::ordered_json& schema, const std::string& title, bool coloured);
