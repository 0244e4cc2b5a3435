// Where the running program is: Windows.
#include <string>

#include <windows.h>

#include "tools/talschema/xsd/Program.h"

std::filesystem::path ProgramPath()
{
    std::wstring path(32768, L'\0'); // no path is longer
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}
