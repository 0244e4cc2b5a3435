// Who may do what with a file that takes the place of another one: POSIX.
#pragma once

#include <filesystem>
#include <string>

#include "TalAttributeSchemaHost/platform/PosixCalls.h"

namespace tal {

/// Gives the new file what says who may do what with the old one. Returns what could not be kept, in a
/// sentence; throws where even the permissions cannot be set.
std::string KeepAccess(const std::filesystem::path& oldFile, const Status& old, int newFile);

} // namespace tal
