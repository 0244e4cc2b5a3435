// Standard output.
#pragma once

#include <string>

/// Writes `text` to standard output. Throws `Trouble` when it does not arrive there.
void Print(const std::string& text);

/// True when standard output is a terminal, which `TERM` does not call dumb, and `NO_COLOR` is unset or
/// empty.
bool ColoursWanted();
/// True when git shows the output in its pager, which understands colours unless it is told otherwise.
bool PagerColoursWanted();

enum class Style
{
    Plain = 0,
    Bold = 1,
    Dim = 2,
    Red = 31,
    Green = 32,
    Yellow = 33,
    Cyan = 36,
};

/// The text in the style, or as it is when it is not to be coloured.
std::string Paint(const std::string& text, Style style, bool coloured);
