// Patterns for the names of files and folders.
#pragma once

#include <string_view>

// Between the names of a pattern and of a path stands `/`; in a pattern, an empty name and `.` do not count.
// `*` stands for any characters and `?` for one, but never for `/`; `**` stands for `/`, too, and `**/` in
// front of a name for any number of folders, also none; `[a-c]` and `[!a-c]` stand for one ASCII character.
// The time grows with the product of both lengths, whatever the pattern.

/// `--include` and `--exclude`: a pattern with `/` is about the whole path, any other about its last name.
bool FileGlobMatches(std::string_view pattern, std::string_view path);

/// `path` of a project file: the pattern is about the whole path or a folder on its way.
bool FolderGlobMatches(std::string_view pattern, std::string_view path);
