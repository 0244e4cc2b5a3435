// Small files of a project beside its documents.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

/// The content of a regular file. Throws `Trouble` when it cannot be read.
std::string ReadTextFile(const std::string& name);

/// `file:line:column: error: text`, a line that is safe for a terminal. Lines and columns count from 1;
/// without a line there is no place.
std::string ErrorAt(const std::string& file, std::size_t line, std::size_t column, const std::string& text);

/// The file as it is called from a folder, with "/" between names; both need not exist. Bytes that are not
/// UTF-8 become U+FFFD.
std::string NameFrom(const std::filesystem::path& folder, const std::string& file);

/// The folder of a file, absolute.
std::filesystem::path FolderOf(const std::string& file);
