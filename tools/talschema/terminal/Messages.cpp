#include "tools/talschema/terminal/Messages.h"

#include "tools/talschema/terminal/Text.h"

namespace {

std::string Message(const std::string& file, const char* severity, const std::string& text)
{
    return Printable(file) + ": " + severity + ": " + Printable(text) + "\n";
}

} // namespace

std::string ErrorMessage(const std::string& file, const std::string& text)
{
    return Message(file, "error", text);
}

std::string NoteMessage(const std::string& file, const std::string& text)
{
    return Message(file, "note", text);
}

Trouble::Trouble(const std::string& file, const std::error_code& error)
    : std::runtime_error(ErrorMessage(file, error.message()))
{
}
