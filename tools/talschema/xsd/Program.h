// Where the running program is.
#pragma once

#include <filesystem>

/// The absolute path of the running program; empty where the system does not tell.
std::filesystem::path ProgramPath();
