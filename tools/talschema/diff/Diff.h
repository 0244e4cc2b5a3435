// `talschema diff`: what differs between two documents as the library reads them.
#pragma once

#include "tools/talschema/Command.h"

/// `talschema diff A B`.
Command AddDiffCommand(CLI::App& app);
