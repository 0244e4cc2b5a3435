// Putting right what is certain.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "TalAttributeSchemaHost/check/Check.h"

namespace tal {

/// Which fixes are wanted. An empty function wants all.
using FixFilter = std::function<bool(const Finding&)>;

/// What became of a fix.
struct FixResult
{
    /// The document with what was fixed; as it was given when nothing was, or when `error` says why not.
    std::string text;
    /// What was fixed, with its places in the text in which it was found: what a fix brings to light may have
    /// one, too.
    std::vector<Finding> fixed;
    /// What is left to be found in `text`.
    CheckResult check;
    /// Why nothing was fixed although there is something to fix: one line in UTF-8. Otherwise empty.
    std::string error;
};

/// Applies `Finding::fix` of every finding that is wanted until there is none: names in another letter case,
/// names to which one known name is near, flags in other words, and the flag that is read only under
/// "UseInComparision". Nothing is done that replaces or hides what was read before. Every byte outside the
/// edits stays, in whatever encoding. The result has been checked: a document that would not be read is left
/// as it was.
///
/// Threads and exceptions as for `CheckText`.
TALHOST_API FixResult FixText(std::string_view bytes, const std::string& name,
                              const CheckOptions& options = {}, const FixFilter& wanted = {});

} // namespace tal
