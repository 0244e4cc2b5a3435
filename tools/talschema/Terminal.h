// Standard output.
#pragma once

#include <string>

/// Writes `text` to standard output. Throws `Trouble` when it does not arrive there.
void Print(const std::string& text);

/// True when standard output is a terminal and `NO_COLOR` is unset or empty.
bool ColoursWanted();
