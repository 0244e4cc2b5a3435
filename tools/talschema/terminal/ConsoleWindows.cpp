// What the system says of standard input and output: Windows.
#include "tools/talschema/terminal/Console.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace {

HANDLE Output()
{
    return GetStdHandle(STD_OUTPUT_HANDLE);
}

bool ObeysEscapes(HANDLE stream)
{
    DWORD mode = 0;
    return GetConsoleMode(stream, &mode) && (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

} // namespace

Console::Console()
{
    for (std::FILE* stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
    m_codePage = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    DWORD mode = 0;
    if (GetConsoleMode(Output(), &mode) &&
        SetConsoleMode(Output(), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING))
        m_outputMode = mode;
}

// The console is the shell's, too.
Console::~Console()
{
    if (m_outputMode != 0)
        SetConsoleMode(Output(), m_outputMode);
    if (m_codePage != 0)
        SetConsoleOutputCP(m_codePage);
}

bool IsTerminal()
{
    return ObeysEscapes(Output());
}

// Both streams show on one console, whose mode is set through the output.
bool ErrorsGoToTerminal()
{
    return ObeysEscapes(GetStdHandle(STD_ERROR_HANDLE));
}

std::error_code StateOfInput()
{
    SetLastError(NO_ERROR);
    const bool known = GetFileType(GetStdHandle(STD_INPUT_HANDLE)) != FILE_TYPE_UNKNOWN;
    return known ? std::error_code()
                 : std::error_code(static_cast<int>(GetLastError()), std::system_category());
}
