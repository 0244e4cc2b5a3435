// `talschema rewrite`: reads a document and writes it as the library does, whole or not at all.
#pragma once

#include "tools/talschema/Command.h"

/// `talschema rewrite INPUT OUTPUT`.
Command AddRewriteCommand(CLI::App& app);
