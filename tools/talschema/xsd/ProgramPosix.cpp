// Where the running program is: POSIX.
#include <system_error>

#include "tools/talschema/xsd/Program.h"

std::filesystem::path ProgramPath()
{
    std::error_code error;
    std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path() : path;
}
