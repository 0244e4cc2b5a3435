// What the standard library does not know of the system's files: on POSIX it knows it all.
#include "TalAttributeSchemaHost/platform/FileSystem.h"

namespace fs = std::filesystem;

namespace tal {

fs::file_status FileStatus(const fs::path& path, std::error_code& error)
{
    return fs::status(path, error);
}

fs::path RealPath(const fs::path& path, std::error_code& error)
{
    return fs::weakly_canonical(path, error);
}

std::string SystemMessage(const std::error_code& error)
{
    return error.message();
}

} // namespace tal
