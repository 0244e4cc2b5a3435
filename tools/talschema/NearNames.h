// Guessing which name somebody meant.
#pragma once

#include <string>
#include <vector>

/// The first known name that is nearest to `name`: at most two edits away, letter case left aside. Empty when
/// none is near.
std::string NearestName(const std::string& name, const std::vector<std::string>& known);
