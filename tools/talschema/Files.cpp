// Names of files that a person gives.
#include "tools/talschema/Files.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "tools/talschema/Messages.h"
#include "tools/talschema/Text.h"

namespace fs = std::filesystem;

GuString AbsolutePath(const std::string& file)
{
    const std::string absolute = fs::absolute(file).string();
    GuString path(absolute.c_str());
    if (ToUtf8(path) != absolute)
        throw Trouble(ErrorMessage(file.c_str(), "the file name is not UTF-8 text"));
    return path;
}

void ExpectReadable(const std::string& file)
{
    RefuseSpecialFile(file);
    if (!std::ifstream(file))
        throw Trouble(file, std::error_code(errno, std::generic_category()));
}

void RefuseSpecialFile(const std::string& file)
{
    std::error_code ignored; // whoever opens the file says why it cannot be opened
    const fs::file_status status = fs::status(file, ignored);
    if (fs::is_directory(status))
        throw Trouble(file, std::make_error_code(std::errc::is_a_directory));
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw Trouble(ErrorMessage(file.c_str(), "not a regular file"));
}
