#include "tools/talschema/terminal/Terminal.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include "tools/talschema/terminal/Console.h"
#include "tools/talschema/terminal/Messages.h"

void Print(const std::string& text)
{
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!written || std::fflush(stdout) != 0)
        throw Trouble("standard output", std::error_code(errno, std::generic_category()));
}

namespace {

bool ColoursAllowed()
{
    const char* const noColor = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    const bool dumb = terminal && std::strcmp(terminal, "dumb") == 0;
    return !dumb && (!noColor || !*noColor);
}

} // namespace

bool ColoursWanted()
{
    return IsTerminal() && ColoursAllowed();
}

bool PagerColoursWanted()
{
    const char* const pager = std::getenv("GIT_PAGER_IN_USE");
    return pager && *pager && ColoursAllowed();
}

std::string Paint(const std::string& text, Style style, bool coloured)
{
    if (!coloured || style == Style::Plain)
        return text;
    return "\033[" + std::to_string(static_cast<int>(style)) + "m" + text + "\033[0m";
}
