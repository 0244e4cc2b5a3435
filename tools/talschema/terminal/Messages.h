// What a person sees when something is wrong, and what a shell sees.
#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

enum ExitCode : int
{
    kExitFine = 0,
    kExitFindings = 1, // findings or differences
    kExitTrouble = 2,  // unreadable, unwritable, wrong usage
};

/// One line, `file: error: text`, from UTF-8. Safe for a terminal.
std::string ErrorMessage(const std::string& file, const std::string& text);
/// The same with `note`.
std::string NoteMessage(const std::string& file, const std::string& text);

/// Ends a command with `kExitTrouble`. Carries whole lines, safe for a terminal.
class Trouble : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    /// One line: what the operating system's error means for `file`.
    Trouble(const std::string& file, const std::error_code& error);
};
