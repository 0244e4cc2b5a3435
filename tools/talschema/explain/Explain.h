// `talschema explain`: what a finding means, an example, and the repair.
#pragma once

#include "tools/talschema/Command.h"

/// `talschema explain [ID...]`.
Command AddExplainCommand(CLI::App& app);
