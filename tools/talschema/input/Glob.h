// Patterns for the names of files.
#pragma once

#include <string>
#include <string_view>

/// True when the pattern matches the whole path, whose parts are separated by `/`. `*` stands for any
/// characters and `?` for one, but never for `/`; `**` stands for `/`, too; `[a-c]` and `[!a-c]` for one
/// ASCII character. A pattern without `/` is about the last part of the path only.
bool GlobMatches(std::string_view pattern, std::string_view path);
