// What the standard library does not know of the system's files.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace tal {

/// What is at the path, links followed. A name that the system keeps for a device is one in every folder.
std::filesystem::file_status FileStatus(const std::filesystem::path& path, std::error_code& error);

/// The path with every link in it followed, as far as it leads to something that exists; the same for all
/// paths to one file.
std::filesystem::path RealPath(const std::filesystem::path& path, std::error_code& error);

/// What the system says of the error, in UTF-8.
std::string SystemMessage(const std::error_code& error);

} // namespace tal
