// The objects of a schema and their references as a graph.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// What references can name. Identifiers are told apart within a kind.
enum class NodeKind
{
    Entity,
    File,
    AttributeGroup,
    Attribute,
};

/// An identifier, defined or only referred to. All text is UTF-8.
struct GraphNode
{
    NodeKind kind;
    std::string id;
    std::size_t number;                  // among all nodes of the document, from 1
    std::vector<std::string> names = {}; // one of each definition that has one
    std::size_t definitions = 0;         // several share an identifier
};

struct GraphEdge
{
    std::size_t from; // a node's index
    std::size_t to;
    const char* label; // what refers, or empty where the kinds of the nodes say it
};

struct SchemaGraph
{
    std::vector<GraphNode> nodes;
    std::vector<GraphEdge> edges;
};

SchemaGraph GraphOf(const CDASchema& schema);

/// The node `start` and all that it refers to, directly or through others.
SchemaGraph Neighbourhood(const SchemaGraph& graph, std::size_t start);
