// Patterns for the names of files and folders.
#pragma once

#include <string>

/// True when the pattern fits the path or a folder on its way; both have "/" between names. "?" stands for
/// one character and "*" for any number of them in a name, "**" for any number of names.
bool FitsGlob(const std::string& pattern, const std::string& path);
