// A graph in Graphviz' language DOT.
#pragma once

#include <string>

#include "tools/talschema/graph/SchemaGraph.h"

/// Safe for a terminal.
std::string GraphAsDot(const SchemaGraph& graph, const std::string& title);
