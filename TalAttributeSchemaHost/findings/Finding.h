// What was found in a document.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/findings/FindingRules.h"
#include "TalAttributeSchemaHost/scan/Range.h"

namespace tal {

/// A change to the text of a document.
struct Edit
{
    Range range;             ///< what is taken out
    std::string replacement; ///< what comes in its place: ASCII, without anything that XML would escape
};

/// A fact about a document. All text is UTF-8 and raw: as the document has it, however long, control
/// characters included. Whoever shows it on a terminal escapes it.
struct Finding
{
    /// Where a value of the document stands inside of `message`, in bytes, without its quotes.
    struct Value
    {
        std::size_t begin;  ///< from 0
        std::size_t length; ///< in bytes
    };

    FindingId id = FindingId::None;         ///< what was found
    FindingKind kind = FindingKind::System; ///< what it means for a read or a rewrite
    Severity severity = Severity::Error;    ///< that of the kind
    std::string file;    ///< the document as its caller calls it, or another file that it brings in
    Range range;         ///< in `file`; of another file than the document only the line and column are known
    std::string path;    ///< of the element, "/Model/Storage"; empty in front of the root. In the middle of a
                         ///< very deep one stands "..."
    std::string subject; ///< the name or value that the finding is about
    std::string suggestion; ///< what was meant in place of the subject, or empty
    std::string message;    ///< the fact in one sentence
    std::vector<Value> values =
        {}; ///< those that `message` names, in order, for printers that cut or mark them
    /// Further findings that would not be there without this one: the references to what is defined in an
    /// element that is skipped, where there are several. In the order of their places; they have none. They
    /// are findings of their own where a comment suppresses this one.
    std::vector<Finding> consequences = {};
    /// `path` with the identifiers or names of elements in the place of their numbers,
    /// "/Model/Entities/Entity[Fan]": what stays the same when other elements come and go. "/", "[", "]" and
    /// "%" are escaped in it as in a URI.
    std::string identity = {};
    /// What puts it right, where that is certain; otherwise empty. The edits belong together, in the order of
    /// their places, and are in `file`, which is the document. See `FixText`.
    std::vector<Edit> fix = {};
};

} // namespace tal
