// `talschema check`: what the reader will do with documents.
#pragma once

#include "tools/talschema/Command.h"

/// `talschema check FILE...`.
Command AddCheckCommand(CLI::App& app);
