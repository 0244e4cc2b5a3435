// What the system says of standard input and output: POSIX.
#include "tools/talschema/terminal/Console.h"

#include <cerrno>

#include <unistd.h>

Console::Console() = default;

Console::~Console() = default;

bool IsTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

bool ErrorsGoToTerminal()
{
    return isatty(STDERR_FILENO) != 0;
}

std::error_code StateOfInput()
{
    char nothing;
    return read(STDIN_FILENO, &nothing, 0) < 0 ? std::error_code(errno, std::generic_category())
                                               : std::error_code();
}
