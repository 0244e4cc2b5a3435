// Where something stands in a document.
#pragma once

#include <cstddef>

namespace tal {

/// A place between two characters of a document. Lines end with LF, CR or both; a tab is one character; a
/// byte order mark is none.
struct Position
{
    std::size_t line = 0;        ///< from 1; 0 where there is no place
    std::size_t column = 0;      ///< from 1, in characters (code points), as editors count them
    std::size_t utf16Column = 0; ///< from 1, in UTF-16 code units
    std::size_t utf8Column = 0;  ///< from 1, in bytes of the line in UTF-8, whatever the document's encoding
    std::size_t offset = 0;      ///< from 0, in bytes of the document as it is stored
};

/// From the first character to behind the last one; both places are the same where nothing is between them.
struct Range
{
    Position begin; ///< of the first character
    Position end;   ///< behind the last one
};

} // namespace tal
