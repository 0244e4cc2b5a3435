// How deep attribute folders may nest.
#pragma once

/// Attribute folders are read and written down to this level; level 1 stands directly under "Condition". The
/// XML library's serializer recurses, and this many levels fit into every stack.
constexpr int kMaxFolderDepth = 1000;

/// No element of the format stands deeper, the root counted as 1: "Condition" is the seventh element from the
/// root on, and a reference stands in the deepest folder.
constexpr int kMaxElementDepth = 7 + kMaxFolderDepth + 1;
