// Replacing a file whole or not at all: Windows.
#include "TalAttributeSchemaHost/file/ReplacementFile.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include <windows.h>

#include "TalAttributeSchemaHost/platform/FileSystem.h"

namespace fs = std::filesystem;

namespace tal {

namespace {

[[noreturn]] void ThrowError()
{
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
}

void Require(BOOL done)
{
    if (!done)
        ThrowError();
}

HANDLE Handle(std::intptr_t handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

/// Where the file system has access lists.
void CopyAccessList(const fs::path& from, const fs::path& to)
{
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<unsigned char> descriptor(size);
    if (size > 0 && GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size))
        Require(SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, descriptor.data()));
}

/// Nothing when there is no such file.
std::optional<DWORD> Attributes(const fs::path& file)
{
    const DWORD attributes = GetFileAttributesW(file.c_str());
    return attributes == INVALID_FILE_ATTRIBUTES ? std::nullopt : std::optional<DWORD>(attributes);
}

bool IsReadOnly(const std::optional<DWORD>& attributes)
{
    return attributes && (*attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace

/// The name of a new file, which is removed unless the file has moved.
class ReplacementFile::Name
{
public:
    explicit Name(fs::path path) : m_path(std::move(path)) {}
    ~Name()
    {
        if (!m_path.empty())
            DeleteFileW(m_path.c_str());
    }
    Name(const Name&) = delete;
    Name& operator=(const Name&) = delete;

    const fs::path& GetPath() const { return m_path; }

    void MoveTo(const fs::path& target, bool flush)
    {
        const std::optional<DWORD> old = Attributes(target);
        // Nothing replaces a read-only file.
        if (IsReadOnly(old))
            Require(SetFileAttributesW(target.c_str(), *old & ~DWORD(FILE_ATTRIBUTE_READONLY)));
        // In one step: what replaces a file with all that belongs to it first takes the old one away.
        const BOOL moved =
            MoveFileExW(m_path.c_str(), target.c_str(),
                        MOVEFILE_REPLACE_EXISTING | (flush ? DWORD(MOVEFILE_WRITE_THROUGH) : 0));
        const DWORD error = GetLastError();
        if (moved)
            m_path.clear();
        if (old)
            SetFileAttributesW(target.c_str(), *old);
        SetLastError(error);
        Require(moved);
    }

private:
    fs::path m_path;
};

ReplacementFile::ReplacementFile(const fs::path& target)
{
    std::error_code error;
    m_target = RealPath(target, error);
    if (error)
        throw std::system_error(error);
    if (!fs::is_directory(m_target.parent_path()))
        throw std::system_error(std::make_error_code(std::errc::no_such_file_or_directory));
    wchar_t name[MAX_PATH] = {};
    Require(GetTempFileNameW(m_target.parent_path().c_str(), L"tal", 0, name) != 0);
    m_name = std::make_unique<Name>(name);
    // Nobody may read the new file who may not read the old one.
    if (Attributes(m_target))
        CopyAccessList(m_target, name);
    const HANDLE handle = CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      TRUNCATE_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    Require(handle != INVALID_HANDLE_VALUE);
    m_handle = reinterpret_cast<std::intptr_t>(handle);
}

ReplacementFile::~ReplacementFile()
{
    if (Handle(m_handle) != INVALID_HANDLE_VALUE)
        CloseHandle(Handle(m_handle)); // before the name goes
}

bool ReplacementFile::ReplacesReadOnlyFile() const
{
    return IsReadOnly(Attributes(m_target));
}

void ReplacementFile::Write(const void* bytes, std::size_t count)
{
    const char* next = static_cast<const char*>(bytes);
    while (count > 0) {
        DWORD written = 0;
        const auto piece = static_cast<DWORD>(std::min<std::size_t>(count, 1U << 30));
        Require(WriteFile(Handle(m_handle), next, piece, &written, nullptr));
        next += written;
        count -= written;
        m_size += written;
    }
}

std::size_t ReplacementFile::Read(std::uint64_t offset, void* bytes, std::size_t most) const
{
    LARGE_INTEGER position;
    position.QuadPart = static_cast<LONGLONG>(offset);
    Require(SetFilePointerEx(Handle(m_handle), position, nullptr, FILE_BEGIN));
    DWORD count = 0;
    const auto piece = static_cast<DWORD>(std::min<std::size_t>(most, 1U << 30));
    Require(ReadFile(Handle(m_handle), bytes, piece, &count, nullptr));
    return count;
}

std::string ReplacementFile::Commit(bool flush)
{
    Require(!flush || FlushFileBuffers(Handle(m_handle)));
    CloseHandle(Handle(m_handle));
    m_handle = reinterpret_cast<std::intptr_t>(INVALID_HANDLE_VALUE);
    m_name->MoveTo(m_target, flush);
    return {};
}

} // namespace tal
