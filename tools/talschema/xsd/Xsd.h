// `talschema xsd`: the format for editors and validators.
#pragma once

#include "tools/talschema/Command.h"

/// `talschema xsd [--path]`.
Command AddXsdCommand(CLI::App& app);
