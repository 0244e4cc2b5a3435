// Differences as JSON for programs.
#pragma once

#include <vector>

#include <nlohmann/json.hpp>

#include "tools/talschema/diff/DiffCompare.h"

/// A flat array. `oldPointer` and `newPointer` say where a value stands in the JSON of either schema.
/// `before` is that of the old one, with its own identifiers.
nlohmann::ordered_json DifferencesAsJson(const std::vector<Difference>& sections,
                                         const nlohmann::ordered_json& before);
