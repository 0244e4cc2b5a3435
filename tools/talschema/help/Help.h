// `talschema help`, and what to say of a command that does not exist.
#pragma once

#include <string>

#include "tools/talschema/Command.h"

/// `talschema help [COMMAND]`.
Command AddHelpCommand(CLI::App& app);

/// Throws `Trouble` when the first argument that is no option is no command either.
void ExpectCommand(const CLI::App& app, int argc, const char* const* argv);
