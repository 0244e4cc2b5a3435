#include "TalAttributeSchemaHost/scan/FileBytes.h"

#include <cerrno>
#include <fstream>

#include "TalAttributeSchemaHost/platform/FileSystem.h"

namespace fs = std::filesystem;

namespace tal {

std::string ReadFile(const fs::path& file, std::error_code& error)
{
    const fs::file_status status = FileStatus(file, error);
    if (!fs::exists(status)) {
        if (!error)
            error = std::make_error_code(std::errc::no_such_file_or_directory);
        return {};
    }
    error.clear();
    if (fs::is_directory(status))
        error = std::make_error_code(std::errc::is_a_directory);
    else if (!fs::is_regular_file(status))
        error = std::make_error_code(std::errc::not_supported);
    if (error)
        return {};

    std::ifstream stream(file, std::ios::binary);
    const std::uintmax_t size = fs::file_size(file, error);
    std::string bytes;
    if (stream && !error) {
        bytes.resize(static_cast<std::size_t>(size));
        stream.read(bytes.data(), static_cast<std::streamsize>(size));
        bytes.resize(static_cast<std::size_t>(stream.gcount()));
    }
    if (!stream && !error)
        error = std::error_code(errno ? errno : EIO, std::generic_category());
    return error ? std::string() : bytes;
}

std::string FailureText(const std::error_code& error)
{
    return error == std::errc::not_supported ? "not a regular file" : SystemMessage(error);
}

fs::path AbsolutePath(const fs::path& file)
{
    std::error_code error;
    fs::path absolute = fs::absolute(file, error);
    return error ? file : absolute;
}

} // namespace tal
