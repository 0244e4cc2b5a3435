// Writing a schema to a file, whole or not at all.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "TalAttributeSchemaHost/HostExport.h"
#include "TalAttributeSchemaReader/model/CDASchema.h"

namespace tal {

/// How a file is saved.
struct SaveOptions
{
    /// Wait until the disk has the document before it takes its place.
    bool flush = true;
    /// Replace a file that this user may not write to, too. Otherwise saving it fails.
    bool force = false;
    /// Called at the last moment; when it returns false, the old file stays. An empty function allows
    /// everything.
    std::function<bool()> onlyIf = {};
    /// Parse the new document once more before it takes the place of the old one. Without that a save takes
    /// about a third less time, and nobody would notice a document that cannot be read again. The serializer
    /// refuses what XML forbids, so that would be a fault of this library or of the XML library.
    bool readAgain = true;
};

/// What became of a save.
struct SaveResult
{
    /// The file holds the new document.
    bool saved = false;
    /// Why it was not saved, in UTF-8 and without the name of the file; empty when it was.
    std::string error;
    /// The reason is that the file is read-only; `SaveOptions::force` replaces it all the same.
    bool readOnly = false;
    /// Saved, but something of the old file could not be kept, such as its owner: one line for people, in
    /// UTF-8. Otherwise empty.
    std::string note;

    /// As `saved`.
    explicit operator bool() const { return saved; }
};

/// Writes what `WriteStorageTalAttributeSchema` writes, into a new file in the folder of `file`, parses it
/// once more (unless told otherwise) and only then puts it in the place of `file`. On any failure the old
/// file is as it was. The schema is not changed.
///
/// The new file gets the permissions, the owner, the group and the access list of the old one, as far as the
/// system allows; nobody can read it who could not read the old one. It is another file all the same: other
/// names of the old one (hard links) keep the old document, and other extended attributes are not carried
/// over. When `file` is a symbolic link, the file that it points to is replaced.
///
/// While the new file has a hidden name, this thread holds back SIGINT, SIGTERM and SIGHUP, so that none of
/// them leaves it behind: for an instant, or while the document is written where the file system has no files
/// without a name.
///
/// May be called from any number of threads at once, for different schemas and files, as long as nobody calls
/// the exported functions or initialises or terminates the XML library meanwhile. Nothing but
/// `std::bad_alloc` leaves it.
TALHOST_API SaveResult SaveSchema(const std::filesystem::path& file, CDASchema& schema,
                                  const SaveOptions& options = {});

/// Puts a file with these bytes in the place of `file`, in the same way and with the same promises, but the
/// bytes may be anything: they are not parsed.
TALHOST_API SaveResult SaveBytes(const std::filesystem::path& file, std::string_view bytes,
                                 const SaveOptions& options = {});

} // namespace tal
