// Replacing a file whole or not at all.
#include "tools/talschema/ReplacementFile.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor)
    {
        if (m_descriptor < 0)
            throw std::system_error(errno, std::generic_category());
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(m_descriptor); }

    void Flush() const
    {
        if (fsync(m_descriptor) != 0)
            throw std::system_error(errno, std::generic_category());
    }

private:
    int m_descriptor;
};

fs::path FollowLinks(fs::path path)
{
    while (fs::is_symlink(path))
        path = path.parent_path() / fs::read_symlink(path);
    return path;
}

fs::perms PermissionsOfNewFiles()
{
    const mode_t mask = umask(0);
    umask(mask);
    return static_cast<fs::perms>(0666 & ~mask);
}

} // namespace

// Links that form a circle have no status, so following them comes second.
ReplacementFile::ReplacementFile(const fs::path& target)
    : m_old(fs::status(target)), m_target(FollowLinks(fs::absolute(target)))
{
    std::string name = m_target.parent_path() / ".talschema-XXXXXX";
    const FileDescriptor created(mkstemp(name.data()));
    m_path = name;
}

ReplacementFile::~ReplacementFile()
{
    std::error_code ignored;
    if (!m_path.empty())
        fs::remove(m_path, ignored);
}

void ReplacementFile::Commit()
{
    fs::permissions(m_path, fs::exists(m_old) ? m_old.permissions() : PermissionsOfNewFiles());
    FileDescriptor(open(m_path.c_str(), O_RDONLY | O_CLOEXEC)).Flush();
    fs::rename(m_path, m_target);
    m_path.clear();
    try {
        FileDescriptor(open(m_target.parent_path().c_str(), O_RDONLY | O_CLOEXEC)).Flush();
    } catch (const std::system_error&) {
        // Some file systems cannot flush a directory; the new file is in its place all the same.
    }
}
