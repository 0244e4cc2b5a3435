// Calls of the system as the rest of the library wants them: POSIX.
#pragma once

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>

#include <sys/stat.h>

namespace tal {

/// What `errno` says, as an exception.
[[noreturn]] inline void ThrowError()
{
    throw std::system_error(errno, std::generic_category());
}

/// Calls again when a signal came in between.
template <typename Call>
auto Retried(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

using Status = struct stat;

inline Status StatusOf(int descriptor)
{
    Status status = {};
    if (fstat(descriptor, &status) != 0)
        ThrowError();
    return status;
}

/// What has the name, a link for itself, or nothing.
inline std::optional<Status> StatusOf(const std::filesystem::path& path)
{
    Status status = {};
    if (lstat(path.c_str(), &status) == 0)
        return status;
    if (errno != ENOENT)
        ThrowError();
    return std::nullopt;
}

} // namespace tal
