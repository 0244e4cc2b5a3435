#include "tools/talschema/show/Tree.h"

#include <algorithm>
#include <cstddef>

#include "tools/talschema/terminal/Terminal.h"
#include "tools/talschema/terminal/Text.h"

namespace {

// A longer cell moves the rest of its own row only.
constexpr std::size_t kWidestColumn = 40;
constexpr std::size_t kGap = 2;

using Cells = std::vector<std::string>;
using Widths = std::vector<std::size_t>;

// Most cells are plain, and then this takes no conversion.
std::size_t WidthOf(const std::string& cell)
{
    const bool isAscii = std::all_of(cell.begin(), cell.end(),
                                     [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
    return isAscii ? cell.size() : DisplayWidth(cell);
}

Widths WidthsOfColumns(const TreeNode& node)
{
    Widths widths;
    for (const TreeNode& child : node.children) {
        widths.resize(std::max(widths.size(), child.cells.size()));
        for (std::size_t i = 0; i < child.cells.size(); ++i)
            widths[i] = std::max(widths[i], std::min(WidthOf(child.cells[i]), kWidestColumn));
    }
    for (std::size_t i = 0; i < std::min(widths.size(), node.titles.size()); ++i) {
        if (widths[i] > 0)
            widths[i] = std::max(widths[i], WidthOf(node.titles[i]));
    }
    return widths;
}

class TreeWriter
{
public:
    explicit TreeWriter(bool coloured) : m_coloured(coloured) {}

    std::string Write(const TreeNode& root)
    {
        m_text = Row(root.cells, Widths(root.cells.size(), 1), Style::Bold, Style::Plain) + "\n";
        WriteChildren(root, "");
        return m_text;
    }

private:
    void WriteChildren(const TreeNode& node, const std::string& indent)
    {
        const Widths widths = WidthsOfColumns(node);
        if (!node.titles.empty() && !node.children.empty())
            m_text +=
                Paint(indent + "│  ", Style::Dim) + Row(node.titles, widths, Style::Dim, Style::Dim) + "\n";
        for (const TreeNode& child : node.children) {
            const bool last = &child == &node.children.back();
            m_text += Paint(indent + (last ? "└─ " : "├─ "), Style::Dim) +
                      Row(child.cells, widths, Style::Cyan, Style::Plain) + "\n";
            WriteChildren(child, indent + (last ? "   " : "│  "));
        }
    }

    std::string Row(const Cells& cells, const Widths& widths, Style firstStyle, Style style) const
    {
        std::string row;
        std::size_t blanks = 0; // before the next cell, so that no row ends in blanks
        for (std::size_t i = 0; i < std::min(cells.size(), widths.size()); ++i) {
            if (widths[i] == 0)
                continue;
            if (!cells[i].empty()) {
                row += std::string(blanks, ' ') + Paint(cells[i], i == 0 ? firstStyle : style);
                blanks = 0;
            }
            const std::size_t width = WidthOf(cells[i]);
            blanks += std::max(widths[i], width) - width + kGap;
        }
        return row;
    }

    std::string Paint(const std::string& text, Style style) const { return ::Paint(text, style, m_coloured); }

    bool m_coloured;
    std::string m_text;
};

} // namespace

std::string TreeAsText(const TreeNode& root, bool coloured)
{
    return TreeWriter(coloured).Write(root);
}
