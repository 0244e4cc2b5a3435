// What a person sees when something is wrong.
#include "tools/talschema/Messages.h"

#include "tools/talschema/Text.h"

std::string ErrorMessage(const GuString& file, const GuString& text, std::uint64_t line, std::uint64_t column)
{
    std::string message = Printable(file);
    if (line > 0)
        message += ":" + std::to_string(line) + ":" + std::to_string(column);
    return message + ": error: " + Printable(text) + "\n";
}

Trouble::Trouble(const std::string& file, const std::error_code& error)
    : std::runtime_error(ErrorMessage(file.c_str(), error.message().c_str()))
{
}
