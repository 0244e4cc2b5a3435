#include "tools/talschema/graph/GraphDot.h"

#include "tools/talschema/terminal/Text.h"

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
constexpr const char* kAmbiguous = R"(color="#c25e00", fontcolor="#c25e00", penwidth=2)";

// In characters. Graphviz fails on a run of 16,384 bytes, and an escape can take six for one.
constexpr std::size_t kLongestName = 100;
constexpr std::size_t kLongestTitle = 1000;

std::string Shortened(const std::string& text, std::size_t longest)
{
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool begins = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
        if (begins && ++characters > longest)
            return text.substr(0, i) + "…";
    }
    return text;
}

// Long identifiers that begin alike stay apart by the numbers of their nodes.
std::string ShortIdentifier(const GraphNode& node)
{
    const std::string id = Shortened(node.id, kLongestName);
    return id == node.id ? id : id + " #" + std::to_string(node.number);
}

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
    return text.empty() ? R"(\"\")" : Escaped(Printable(text));
}

// Different for different nodes: a backslash of the text is doubled, one of an escape is not.
std::string NodeName(const GraphNode& node)
{
    return '"' + std::string(StyleOf(node).name) + " " + Printable(Escaped(ShortIdentifier(node))) + '"';
}

std::string NodeStatement(const GraphNode& node)
{
    std::string label;
    for (const std::string& name : node.names)
        label += Label(Shortened(name, kLongestName)) + "\\n";
    label += Label(ShortIdentifier(node));
    std::string look;
    if (node.definitions == 0) {
        look = std::string(", ") + kDangling;
    } else if (node.definitions > 1) {
        label += "\\n(" + std::to_string(node.definitions) + " definitions)";
        look = std::string(", ") + kAmbiguous;
    }
    return NodeName(node) + " [label=\"" + label + '"' + look + "]";
}

std::string EdgeStatement(const GraphNode& from, const GraphNode& to, const std::string& label)
{
    std::string look = label.empty() ? "" : "label=" + label;
    if (to.definitions == 0)
        look += (look.empty() ? "" : ", ") + std::string(kDangling);
    return NodeName(from) + " -> " + NodeName(to) + (look.empty() ? "" : " [" + look + "]");
}

} // namespace

std::string GraphAsDot(const SchemaGraph& graph, const std::string& title)
{
    std::string dot = "digraph \"" + Label(Shortened(title, kLongestTitle)) + "\" {\n";
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
