// Standard input and output.
#pragma once

#include <string>

/// Throws `Trouble` when nothing can be read from standard input.
void ExpectReadableInput();

/// Writes `text` to standard output. Throws `Trouble` when it does not arrive there.
void Print(const std::string& text);

/// True when standard output is a terminal and `NO_COLOR` is unset or empty.
bool ColoursWanted();

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
