#include "TalAttributeSchemaHost/file/FileAccessPosix.h"

#include <unistd.h>
#ifdef __linux__
#include <linux/limits.h>
#include <sys/xattr.h>
#endif

namespace tal {

namespace {

/// Gives the new file the access list of the old one, and not the one that the folder hands down.
bool CopyAccessList(const std::filesystem::path& from, int to)
{
#ifdef __linux__
    constexpr char name[] = "system.posix_acl_access";
    std::string list(XATTR_SIZE_MAX, '\0');
    const ssize_t size = lgetxattr(from.c_str(), name, list.data(), list.size());
    if (size >= 0)
        return fsetxattr(to, name, list.data(), static_cast<std::size_t>(size), 0) == 0;
    if (errno == ENODATA)
        return fremovexattr(to, name) == 0 || errno == ENODATA || errno == ENOTSUP;
    return errno == ENOTSUP;
#else
    return true;
#endif
}

} // namespace

std::string KeepAccess(const std::filesystem::path& oldFile, const Status& old, int newFile)
{
    Status status = StatusOf(newFile);
    if (status.st_uid != old.st_uid || status.st_gid != old.st_gid) {
        if (Retried([&] { return fchown(newFile, old.st_uid, old.st_gid); }) != 0)
            static_cast<void>(Retried([&] { return fchown(newFile, uid_t(-1), old.st_gid); }));
        status = StatusOf(newFile);
    }
    std::string lost;
    const auto lose = [&](const char* what) { lost += (lost.empty() ? "" : ", ") + std::string(what); };
    mode_t mode = old.st_mode & 07777;
    const bool otherOwner = status.st_uid != old.st_uid;
    const bool otherGroup = status.st_gid != old.st_gid;
    const bool otherList = !CopyAccessList(oldFile, newFile);
    if (otherOwner)
        lose("owner");
    if (otherGroup)
        lose("group");
    if (otherList)
        lose("access list");
    if (otherOwner || otherGroup)
        mode &= 0777;
    if (otherGroup || otherList) {
        // Who was in the group may be one of the others now, and the other way round.
        const mode_t both = (mode >> 3) & mode & 07;
        mode = (mode & 0700) | (both << 3) | both;
    }
    if (Retried([&] { return fchmod(newFile, mode); }) != 0)
        ThrowError();
    return lost.empty() ? lost : "of the old file, these could not be kept: " + lost;
}

} // namespace tal
