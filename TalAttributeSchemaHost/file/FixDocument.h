// Putting a file right, whole or not at all.
#pragma once

#include <filesystem>

#include "TalAttributeSchemaHost/check/FixText.h"
#include "TalAttributeSchemaHost/file/Save.h"

namespace tal {

/// How a file is fixed.
struct FixOptions
{
    CheckOptions check; ///< how the document is checked, before and after
    SaveOptions save;   ///< how the file is replaced
    /// Which fixes are wanted.
    FixFilter wanted = {};
    /// Leave the file as it is and say only what would become of it.
    bool dryRun = false;
};

/// As `FixText`, and what became of the file.
struct FixFileResult : FixResult
{
    /// The document as it was read.
    std::string original;
    /// As in `SaveResult`.
    std::string note;

    /// False when `error` says why nothing was fixed. A file that cannot be read is a finding instead.
    explicit operator bool() const { return error.empty(); }
};

/// Checks a regular file, fixes what is certain as `FixText` does, and puts the result in its place as
/// `SaveBytes` does. When that fails, or when somebody else changed the file meanwhile, the file is left
/// alone, and findings are those of the file as it was.
///
/// Threads and exceptions as for `SaveSchema`.
TALHOST_API FixFileResult FixDocument(const std::filesystem::path& file, const FixOptions& options = {});

} // namespace tal
