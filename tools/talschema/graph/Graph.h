// `talschema graph`: what refers to what in a document, for Graphviz.
#pragma once

#include "tools/talschema/Command.h"

/// `talschema graph FILE`.
Command AddGraphCommand(CLI::App& app);
