// What the standard library does not know of the system's files: Windows.
#include "TalAttributeSchemaHost/platform/FileSystem.h"

#include <windows.h>

namespace fs = std::filesystem;

namespace tal {

namespace {

/// Empty when the path leads to nothing.
std::wstring FinalPath(const fs::path& path)
{
    const HANDLE handle = CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    std::wstring name(GetFinalPathNameByHandleW(handle, nullptr, 0, VOLUME_NAME_DOS), L'\0');
    name.resize(
        GetFinalPathNameByHandleW(handle, name.data(), static_cast<DWORD>(name.size()), VOLUME_NAME_DOS));
    CloseHandle(handle);
    return name;
}

/// Without the prefix that only this system's own functions know.
fs::path PlainPath(const std::wstring& name)
{
    const std::wstring share = LR"(\\?\UNC\)";
    const std::wstring drive = LR"(\\?\)";
    if (name.rfind(share, 0) == 0)
        return LR"(\\)" + name.substr(share.size());
    return name.rfind(drive, 0) == 0 ? name.substr(drive.size()) : name;
}

} // namespace

fs::file_status FileStatus(const fs::path& path, std::error_code& error)
{
    const fs::path absolute = fs::absolute(path, error);
    if (absolute.native().rfind(LR"(\\.\)", 0) == 0)
        return fs::file_status(fs::file_type::character);
    return fs::status(path, error);
}

fs::path RealPath(const fs::path& path, std::error_code& error)
{
    const fs::path absolute = fs::absolute(path, error).lexically_normal();
    fs::path rest;
    for (fs::path existing = absolute; !error; existing = existing.parent_path()) {
        const std::wstring name = FinalPath(existing);
        if (!name.empty())
            return rest.empty() ? PlainPath(name) : PlainPath(name) / rest;
        if (!existing.has_relative_path())
            break;
        rest = rest.empty() ? existing.filename() : existing.filename() / rest;
    }
    return absolute;
}

std::string SystemMessage(const std::error_code& error)
{
    if (error.category() != std::system_category())
        return error.message();
    wchar_t text[512];
    DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                       static_cast<DWORD>(error.value()), 0, text, sizeof text / sizeof *text, nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.'))
        --length;
    return length > 0 ? fs::path(std::wstring(text, length)).u8string()
                      : "error " + std::to_string(error.value());
}

} // namespace tal
