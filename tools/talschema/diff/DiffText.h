// Differences as text for people.
#pragma once

#include <string>
#include <vector>

#include "tools/talschema/diff/DiffCompare.h"

/// Grouped by section, with counts; safe for a terminal. Empty without differences.
std::string DifferencesAsText(const std::vector<Difference>& sections, bool coloured);
