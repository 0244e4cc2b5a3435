// Replacing a file whole or not at all: POSIX.
#include "TalAttributeSchemaHost/file/ReplacementFile.h"

#include <csignal>
#include <optional>
#include <random>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "TalAttributeSchemaHost/file/FileAccessPosix.h"
#include "TalAttributeSchemaHost/platform/PosixCalls.h"

namespace fs = std::filesystem;

namespace tal {

namespace {

constexpr int kMostLinks = 40; // as the system

int Descriptor(std::intptr_t handle)
{
    return static_cast<int>(handle);
}

Status StatusOfFolder(const fs::path& path)
{
    Status status = {};
    if (stat(path.c_str(), &status) != 0)
        ThrowError();
    return status;
}

/// Where everybody may put something and only its owner may take it away, a link of somebody else is a trap.
bool IsTrusted(const Status& link, const Status& folder)
{
    constexpr mode_t everybodys = S_ISVTX | S_IWOTH;
    return (folder.st_mode & everybodys) != everybodys || link.st_uid == geteuid() ||
           link.st_uid == folder.st_uid;
}

/// True when somebody else, other than root, may put something else in the place of a file of this user.
bool OthersMayReplaceFilesIn(const Status& folder)
{
    return (folder.st_uid != geteuid() && folder.st_uid != 0) ||
           ((folder.st_mode & 022) != 0 && (folder.st_mode & S_ISVTX) == 0);
}

fs::path FollowLinks(fs::path path)
{
    for (int i = 0; i < kMostLinks; ++i) {
        const std::optional<Status> status = StatusOf(path);
        if (!status || !S_ISLNK(status->st_mode))
            return path;
        if (!IsTrusted(*status, StatusOfFolder(path.parent_path())))
            throw std::system_error(std::make_error_code(std::errc::permission_denied));
        path = path.parent_path() / fs::read_symlink(path);
    }
    throw std::system_error(std::make_error_code(std::errc::too_many_symbolic_link_levels));
}

std::string RandomName()
{
    constexpr char letters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> index(0, sizeof letters - 2);
    std::string name = ".talschema-";
    for (int i = 0; i < 12; ++i)
        name += letters[index(random)];
    return name;
}

/// Nobody may read the new file who may not read the old one, not even while it is written.
mode_t FirstMode(const fs::path& target)
{
    return StatusOf(target) ? 0600 : 0666;
}

/// A new file without a name. Less than 0 where there is no such thing.
int OpenUnnamed(const fs::path& folder, mode_t mode)
{
#ifdef O_TMPFILE
    return Retried([&] { return open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode); });
#else
    return -1;
#endif
}

/// SIGINT, SIGTERM and SIGHUP wait for the end of it.
class HeldSignals
{
public:
    HeldSignals()
    {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            sigaddset(&held, signal);
        pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }
    ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

private:
    sigset_t m_before = {};
};

/// A hidden folder that only this user can enter, open until it is removed. Others can move it away where
/// they may write, but it is never looked for again.
class OwnFolder
{
public:
    explicit OwnFolder(fs::path path) : m_path(std::move(path))
    {
        if (mkdir(m_path.c_str(), 0700) != 0)
            ThrowError();
        m_descriptor =
            Retried([&] { return open(m_path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); });
        if (m_descriptor >= 0)
            return;
        const std::error_code error(errno, std::generic_category());
        rmdir(m_path.c_str());
        throw std::system_error(error);
    }
    ~OwnFolder()
    {
        close(m_descriptor);
        rmdir(m_path.c_str());
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    int GetDescriptor() const { return m_descriptor; }

    /// Another folder may have come in its place before it was opened. The owner and the rights of a file
    /// that this process made tell what those of a folder are on this file system.
    void ExpectOwn(const Status& madeFile) const
    {
        const Status folder = StatusOf(m_descriptor);
        if (folder.st_uid != madeFile.st_uid || (folder.st_mode & ~madeFile.st_mode & 022) != 0)
            throw std::runtime_error("another process is changing what is in the folder");
    }

private:
    const fs::path m_path;
    int m_descriptor = -1;
};

} // namespace

/// A hidden name for the new file, in a folder of its own where others could put something else in its place.
/// What is hidden is removed before the signals that waited arrive.
class ReplacementFile::Name
{
public:
    explicit Name(const fs::path& folder) : m_path(folder / RandomName())
    {
        if (!OthersMayReplaceFilesIn(StatusOfFolder(folder)))
            return;
        m_ownFolder.emplace(m_path);
        m_folder = m_ownFolder->GetDescriptor();
        m_path = m_path.filename();
    }
    ~Name()
    {
        if (!m_path.empty())
            unlinkat(m_folder, m_path.c_str(), 0);
    }
    Name(const Name&) = delete;
    Name& operator=(const Name&) = delete;

    /// Creates a file that has a name from the start.
    static std::unique_ptr<Name> Create(const fs::path& target, std::intptr_t& handle)
    {
        auto name = std::make_unique<Name>(target.parent_path());
        const mode_t mode = FirstMode(target);
        handle = Retried([&] {
            return openat(name->m_folder, name->m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        });
        if (handle < 0)
            ThrowError();
        if (name->m_ownFolder)
            name->m_ownFolder->ExpectOwn(StatusOf(Descriptor(handle)));
        return name;
    }

    /// Gives a file without a name one; `made` is the file as it was made. Null where that cannot be done.
    static std::unique_ptr<Name> Link(const fs::path& target, std::intptr_t handle, const Status& made)
    {
        auto name = std::make_unique<Name>(target.parent_path());
        if (name->m_ownFolder)
            name->m_ownFolder->ExpectOwn(made);
        const std::string file = "/proc/self/fd/" + std::to_string(handle);
        if (linkat(AT_FDCWD, file.c_str(), name->m_folder, name->m_path.c_str(), AT_SYMLINK_FOLLOW) != 0)
            return nullptr;
        return name;
    }

    void MoveTo(const fs::path& target)
    {
        if (renameat(m_folder, m_path.c_str(), AT_FDCWD, target.c_str()) != 0)
            ThrowError();
        m_path.clear();
    }

private:
    const HeldSignals m_signals;
    std::optional<OwnFolder> m_ownFolder;
    int m_folder = AT_FDCWD;
    fs::path m_path; // from that folder
};

ReplacementFile::ReplacementFile(const fs::path& target) : m_target(FollowLinks(fs::absolute(target)))
{
    m_handle = OpenUnnamed(m_target.parent_path(), FirstMode(m_target));
    if (m_handle < 0)
        m_name = Name::Create(m_target, m_handle);
}

ReplacementFile::~ReplacementFile()
{
    if (m_handle >= 0)
        close(Descriptor(m_handle));
}

bool ReplacementFile::ReplacesReadOnlyFile() const
{
    const std::optional<Status> old = StatusOf(m_target);
    return old && ((old->st_mode & 0222) == 0 ||
                   (faccessat(AT_FDCWD, m_target.c_str(), W_OK, AT_EACCESS) != 0 && errno == EACCES));
}

void ReplacementFile::Write(const void* bytes, std::size_t count)
{
    const char* next = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t written = Retried([&] { return write(Descriptor(m_handle), next, count); });
        if (written < 0)
            ThrowError();
        next += written;
        count -= static_cast<std::size_t>(written);
        m_size += static_cast<std::size_t>(written);
    }
}

std::size_t ReplacementFile::Read(std::uint64_t offset, void* bytes, std::size_t most) const
{
    const ssize_t count =
        Retried([&] { return pread(Descriptor(m_handle), bytes, most, static_cast<off_t>(offset)); });
    if (count < 0)
        ThrowError();
    return static_cast<std::size_t>(count);
}

std::string ReplacementFile::Commit(bool flush)
{
    const auto prepare = [&] {
        std::string note;
        if (const std::optional<Status> old = StatusOf(m_target)) {
            if (!S_ISREG(old->st_mode))
                throw std::system_error(std::make_error_code(std::errc::not_supported));
            note = KeepAccess(m_target, *old, Descriptor(m_handle));
        }
        if (flush && Retried([&] { return fsync(Descriptor(m_handle)); }) != 0)
            ThrowError();
        return note;
    };
    const Status made = StatusOf(Descriptor(m_handle));
    std::string note = prepare();
    if (!m_name)
        m_name = Name::Link(m_target, m_handle, made);
    if (!m_name) {
        // Where a file without a name cannot get one, another one takes over.
        std::string content(static_cast<std::size_t>(std::exchange(m_size, 0)), 0);
        std::size_t size = 0;
        while (const std::size_t count = Read(size, &content[size], content.size() - size))
            size += count;
        close(Descriptor(std::exchange(m_handle, -1)));
        m_name = Name::Create(m_target, m_handle);
        Write(content.data(), size);
        note = prepare();
    }
    // Once it is there nothing may fail, memory included.
    const std::filesystem::path folder = m_target.parent_path();
    m_name->MoveTo(m_target);
    m_name.reset();
    if (!flush)
        return note;
    // Some file systems cannot flush a directory; the new file is in its place all the same.
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
    return note;
}

} // namespace tal
