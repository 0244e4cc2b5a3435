// Reading a document into a schema, and what happened.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "TalAttributeSchemaHost/check/Check.h"
#include "TalAttributeSchemaReader/model/CDASchema.h"

namespace tal {

/// How a document is read.
struct LoadOptions
{
    /// As in `CheckOptions`.
    bool allowExternal = false;
    /// Also find what is skipped, taken for something else or lost in a rewrite. Without, a document that is
    /// read has findings about what it refers to outside of itself only, and loading it takes less time.
    bool check = true;
    /// As in `CheckOptions`.
    std::size_t maxFindings = kMaxFindings;
};

/// A schema, and what happened while it was read.
struct LoadResult
{
    /// Never null; empty when nothing was read.
    std::unique_ptr<CDASchema> schema;
    /// False when nothing was read: the file cannot be read, the document is at fault, or memory ran out. The
    /// findings then say why.
    bool read = false;
    /// In the order of their places.
    std::vector<Finding> findings;
    /// How many more there are of each kind; see `CheckOptions::maxFindings`.
    std::map<FindingId, std::size_t> omitted;

    /// As `read`.
    explicit operator bool() const { return read; }
};

/// Reads a document from a regular file: the same model as `ReadStorageTalAttributeSchema`, except for what
/// `LoadOptions::allowExternal` keeps out.
///
/// May be called from any number of threads at once, as long as nobody calls the exported functions or
/// initialises or terminates the XML library meanwhile. Nothing but `std::bad_alloc` leaves it.
TALHOST_API LoadResult LoadSchema(const std::filesystem::path& file, const LoadOptions& options = {});

/// As `LoadSchema`, with a document in memory, in whatever encoding it declares. Findings call it `name`
/// (UTF-8), and what it refers to is looked for beside a file of that name.
TALHOST_API LoadResult LoadText(std::string_view bytes, const std::string& name,
                                const LoadOptions& options = {});

} // namespace tal
