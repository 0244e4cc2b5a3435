// In which lines of their documents the objects of schemas stand.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "tools/talschema/diff/DiffCompare.h"
#include "tools/talschema/input/Input.h"

/// For each section that is a list, the lines of its objects in their order.
using ObjectLines = std::map<std::string, std::vector<std::size_t>>;

/// Reads the document once more.
ObjectLines LinesOfObjects(const Input& input, bool allowExternal);

/// Puts the lines into the entries of the sections.
void PutLines(std::vector<Difference>& sections, const ObjectLines& before, const ObjectLines& after);
