// A graph in Graphviz' language DOT.
#include "tools/talschema/SchemaGraph.h"

#include "tools/talschema/Text.h"

namespace {

// A kind stands in a column of its own: references go from left to right.
struct KindStyle
{
    const char* name;
    const char* rank;
    const char* look;
};

// In the order of `NodeKind`.
constexpr KindStyle kStyles[] = {
    {"entity", "source", R"(shape=box, style="filled,rounded", fillcolor="#cfe2f3")"},
    {"file", "same", R"(shape=note, style=filled, fillcolor="#fff2cc")"},
    {"group", "same", R"(shape=folder, style=filled, fillcolor="#e6e0ec")"},
    {"attribute", "sink", R"(shape=box, style=filled, fillcolor="#e2efda")"},
};

const KindStyle& StyleOf(const GraphNode& node)
{
    return kStyles[static_cast<std::size_t>(node.kind)];
}

constexpr const char* kDangling = "color=red, fontcolor=red, style=dashed";

// The ampersand begins a character reference in DOT, also in the names of nodes once they are drawn.
std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '"' || character == '\\')
            escaped += '\\';
        escaped += character;
        if (character == '&')
            escaped += "amp;";
    }
    return escaped;
}

// Shows every character for what it is, control characters as their escapes.
std::string Label(const std::string& text)
{
    return text.empty() ? R"(\"\")" : Escaped(Printable(text.c_str()));
}

// Different for different nodes: a backslash of the text is doubled, one of an escape is not.
std::string NodeName(const GraphNode& node)
{
    return '"' + std::string(StyleOf(node).name) + " " + Printable(Escaped(node.id).c_str()) + '"';
}

std::string NodeStatement(const GraphNode& node)
{
    std::string label;
    for (const std::string& name : node.names)
        label += Label(name) + "\\n";
    label += Label(node.id);
    return NodeName(node) + " [label=\"" + label + '"' +
           (node.isDefined ? std::string() : std::string(", ") + kDangling) + "]";
}

std::string EdgeStatement(const GraphNode& from, const GraphNode& to, const std::string& label)
{
    std::string look = label.empty() ? "" : "label=" + label;
    if (!to.isDefined)
        look += (look.empty() ? "" : ", ") + std::string(kDangling);
    return NodeName(from) + " -> " + NodeName(to) + (look.empty() ? "" : " [" + look + "]");
}

} // namespace

std::string GraphAsDot(const SchemaGraph& graph, const std::string& title)
{
    std::string dot = "digraph \"" + Label(title) + "\" {\n";
    dot += "  graph [rankdir=LR, ranksep=1.2, nodesep=0.15]\n";
    dot += "  node [fontname=\"sans-serif\", fontsize=11, height=0.3]\n";
    dot += "  edge [fontname=\"sans-serif\", fontsize=9, color=\"#666666\", fontcolor=\"#666666\"]\n";
    for (const KindStyle& style : kStyles) {
        dot += std::string("  {\n    rank=") + style.rank + "\n    node [" + style.look + "]\n";
        for (const GraphNode& node : graph.nodes) {
            if (&StyleOf(node) == &style)
                dot += "    " + NodeStatement(node) + "\n";
        }
        dot += "  }\n";
    }
    for (const GraphEdge& edge : graph.edges)
        dot += "  " + EdgeStatement(graph.nodes[edge.from], graph.nodes[edge.to], edge.label) + "\n";
    return dot + "}\n";
}
