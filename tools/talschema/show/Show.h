// `talschema show`: what the library reads from a document, for people or for programs.
#pragma once

#include "tools/talschema/Command.h"

/// `talschema show FILE`.
Command AddShowCommand(CLI::App& app);
