// Guessing which name somebody meant.
#pragma once

#include <string>
#include <vector>

/// True when nothing but letter case differs; letters are those of ASCII.
bool EqualIgnoringCase(const std::string& left, const std::string& right);

/// The first known name that is nearest to `name`: at most two edits away, letter case left aside. Empty when
/// none is near.
std::string NearestName(const std::string& name, const std::vector<std::string>& known);
