// A file's content in memory.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace tal {

/// The content of a regular file. On failure the result is empty and `error` says why; what is neither a file
/// nor a folder gives `std::errc::not_supported`, and is not opened.
std::string ReadFile(const std::filesystem::path& file, std::error_code& error);

/// What keeps a file from being read or written, for a person.
std::string FailureText(const std::error_code& error);

/// The path as it is when there is no working directory any more.
std::filesystem::path AbsolutePath(const std::filesystem::path& file);

} // namespace tal
