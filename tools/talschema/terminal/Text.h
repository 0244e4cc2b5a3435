// UTF-8 text on a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The text, safe for a terminal: line ends, control characters and bidirectional controls are escaped (`\n`,
/// `\u009B`), so that no document can move the cursor or reorder what is shown. A byte that is not UTF-8
/// becomes U+FFFD.
std::string Printable(std::string_view text);

/// The number of terminal columns that printable text takes.
std::size_t DisplayWidth(std::string_view text);

/// Where the character with this number, counted from 0, begins; the size of the text when there is none.
std::size_t IndexOfCharacter(std::string_view text, std::size_t number);
