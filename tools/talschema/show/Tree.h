// Trees for people: aligned columns behind box-drawing branches.
#pragma once

#include <string>
#include <vector>

/// A row and the rows below it. All text is printable UTF-8.
struct TreeNode
{
    std::vector<std::string> cells;       // aligned with those of the rows beside it
    std::vector<TreeNode> children = {};  // in order
    std::vector<std::string> titles = {}; // of the children's columns; none where they explain themselves
};

/// The tree as lines. A column that is empty in all rows beside each other is left out.
std::string TreeAsText(const TreeNode& root, bool coloured);
