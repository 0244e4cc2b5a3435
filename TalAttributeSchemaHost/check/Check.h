// What the reader will do with a document.
#pragma once

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "TalAttributeSchemaHost/findings/Finding.h"

namespace tal {

/// Findings that are kept unless the caller wants more or fewer.
constexpr std::size_t kMaxFindings = 100'000;

/// How a document is checked.
struct CheckOptions
{
    /// External document types and entities are read wherever they are, the network included. Otherwise a
    /// document that needs anything but regular files in or below its own folder, links followed, is not
    /// read.
    bool allowExternal = false;
    /// Keep the lines in which findings begin.
    bool keepLines = false;
    /// The ANSI code page of a host on Windows, such as 1252: findings also say what is lost when that host
    /// writes the document. 0 stands for UTF-8, which loses nothing. A number that the system does not know
    /// is a finding, and the document is not looked at.
    unsigned codePage = 0;
    /// Of more findings than this the first ones of the document are kept, and of each kind of error the
    /// first one however many there are: 0 keeps nothing else. The others only count, so that a document of
    /// strangers cannot fill the memory with findings.
    std::size_t maxFindings = kMaxFindings;
    /// Look up where the objects of the model stand.
    bool keepPlaces = false;
    /// Leave out what comments of the document ask for; see `CheckResult::suppressed`.
    bool suppressions = true;
};

/// The tags of a document out of which the objects of its model come, in the order of the model's lists.
struct ObjectPlaces
{
    std::vector<Range> attributes;      ///< the names of the tags of attribute definitions
    std::vector<Range> files;           ///< likewise, of file kinds
    std::vector<Range> attributeGroups; ///< likewise
    std::vector<Range> entities;        ///< likewise
};

/// A finding that a comment of the document asks not to be told of.
struct SuppressedFinding
{
    Finding finding;    ///< what was found
    std::string reason; ///< as the comment gives it, or empty
};

/// What a check found.
struct CheckResult
{
    /// In the order of their places; those in other files that the document brings in come last.
    std::vector<Finding> findings;
    /// Those that are not among `findings` because of a comment, in the order of their places:
    /// `<!-- talschema-disable-next-line ID, ID: reason -->` for the line behind it, or
    /// `<!-- talschema-disable ID: reason -->` up to the end of the element around it. What keeps a document
    /// from being read cannot be suppressed.
    std::vector<SuppressedFinding> suppressed;
    /// In UTF-8 and without their ends, by their numbers; see `CheckOptions::keepLines`.
    std::map<std::size_t, std::string> lines = {};
    /// How many more there are of each kind; see `CheckOptions::maxFindings`.
    std::map<FindingId, std::size_t> omitted = {};
    /// See `CheckOptions::keepPlaces`. Empty for a document of which nothing is read.
    ObjectPlaces places = {};
};

/// Checks a regular file. A file that cannot be read is a finding, and so is memory that runs out.
///
/// This and the following functions may be called from any number of threads at once, as long as nobody calls
/// the exported functions or initialises or terminates the XML library meanwhile. Nothing but
/// `std::bad_alloc` leaves them.
TALHOST_API CheckResult CheckDocument(const std::filesystem::path& file, const CheckOptions& options = {});

/// Checks a document in memory, in whatever encoding it declares. Findings call it `name` (UTF-8), and what
/// it refers to is looked for beside a file of that name.
TALHOST_API CheckResult CheckText(std::string_view bytes, const std::string& name,
                                  const CheckOptions& options = {});

/// As `CheckText`, with all that is left in the stream.
TALHOST_API CheckResult CheckStream(std::istream& stream, const std::string& name,
                                    const CheckOptions& options = {});

/// True when the findings say that nothing of the document is read.
TALHOST_API bool IsUnreadable(const std::vector<Finding>& findings);

} // namespace tal
