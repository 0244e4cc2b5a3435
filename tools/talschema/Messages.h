// What a person sees when something is wrong, and what a shell sees.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <system_error>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

enum ExitCode : int
{
    kExitFine = 0,
    kExitFindings = 1, // findings or differences
    kExitTrouble = 2,  // unreadable, unwritable, wrong usage
};

/// One line, `file:line:column: error: text`, without line and column when `line` is 0. Safe for a terminal.
std::string ErrorMessage(const GuString& file, const GuString& text, std::uint64_t line = 0,
                         std::uint64_t column = 0);

/// Ends a command with `kExitTrouble`. Carries whole lines made by `ErrorMessage`.
class Trouble : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    /// One line: what the operating system's error means for `file`.
    Trouble(const std::string& file, const std::error_code& error);
};
