// Text of the model as bytes for people and programs.
#pragma once

#include <cstddef>
#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// The text in UTF-8. Half of a surrogate pair becomes U+FFFD.
std::string ToUtf8(const GuString& text);

/// The text in UTF-8, safe for a terminal: line ends, control characters and bidirectional controls are
/// escaped (`\n`, `\u009B`), so that no document can move the cursor or reorder what is shown.
std::string Printable(const GuString& text);

/// The number of terminal columns that printable UTF-8 text takes.
std::size_t DisplayWidth(const std::string& text);
