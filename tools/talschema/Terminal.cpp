// Standard input and output.
#include "tools/talschema/Terminal.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include <unistd.h>

#include "tools/talschema/Messages.h"

void ExpectReadableInput()
{
    char nothing;
    if (read(STDIN_FILENO, &nothing, 0) < 0)
        throw Trouble("standard input", std::error_code(errno, std::generic_category()));
}

void Print(const std::string& text)
{
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!written || std::fflush(stdout) != 0)
        throw Trouble("standard output", std::error_code(errno, std::generic_category()));
}

bool ColoursWanted()
{
    const char* const noColor = std::getenv("NO_COLOR");
    return isatty(STDOUT_FILENO) != 0 && (!noColor || !*noColor);
}

std::string Paint(const std::string& text, Style style, bool coloured)
{
    if (!coloured || style == Style::Plain)
        return text;
    return "\033[" + std::to_string(static_cast<int>(style)) + "m" + text + "\033[0m";
}
