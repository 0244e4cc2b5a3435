// What can be found in a document: identifiers that stay as they are, so that people can rely on them.
#pragma once

#include <array>
#include <cstddef>

#include "TalAttributeSchemaHost/HostExport.h"

namespace tal {

/// One for each kind of finding; `None` where a rule of the format has nothing to report.
enum class FindingId
{
    None,
    UnreadableFile,
    SystemFailure,
    NotWellFormed,
    InvalidByte,
    UnsupportedVersion,
    NotValid,
    ParserWarning,
    OutsideFolder,
    Expansion,
    WrongRoot,
    UnknownElement,
    ElementCase,
    MisplacedElement,
    EntityContent,
    UnknownAttribute,
    AttributeCase,
    SupersededAttribute,
    MissingAttribute,
    ReaderWithoutAttributes,
    FlagValue,
    TextContent,
    CodePage,
    UnknownReference,
    DuplicateId,
    DuplicateType,
    ExternalReference,
    UseInComparison,
    CreationType,
    GroupGenerator,
    EmptyGenerator,
    OtherType,
    EmptyReference,
    EmptyResource,
    Filters,
    IgnoredContent,
    AssemblyScript,
    FolderWithoutAttributes,
    FolderTooDeep,
    MergedElement,
    RenamedAttribute,
    NamespaceAttribute,
    UnwritableCharacter,
    StaleSuppression,
    UnknownSuppression,
    Count ///< not an identifier: how many there are
};

/// How bad a finding is.
enum class Severity
{
    Error,   ///< nothing of the document is read
    Warning, ///< something is read otherwise than its author may think
    Note     ///< something to know
};

/// What a finding means for a read or a rewrite.
enum class FindingKind
{
    System,     ///< the document could not be looked at
    Unreadable, ///< nothing of the document is read
    Skipped,    ///< the reader passes over it
    Value,      ///< the reader takes it for something else
    Reference,  ///< the reader does not check it
    External,   ///< reading reaches outside the document
    Lost,       ///< read, but not there any more after a rewrite
    Suppression ///< a comment that asks not to be told of something, and asks in vain
};

/// What is known about every finding of one identifier.
struct FindingRule
{
    FindingId id;           ///< whose rule this is
    const char* identifier; ///< "unknown-element"
    FindingKind kind;       ///< of every such finding
    const char* summary;    ///< what was found, in a few words
};

/// A row for each identifier.
using FindingRules = std::array<FindingRule, static_cast<std::size_t>(FindingId::Count) - 1>;

/// One rule for every `FindingId` but `None`, in their order.
TALHOST_API const FindingRules& AllFindingRules();
/// `id` must not be `None`.
TALHOST_API const FindingRule& RuleOf(FindingId id);
/// How bad findings of this kind are.
TALHOST_API Severity SeverityOf(FindingKind kind);
/// "skipped", in small letters.
TALHOST_API const char* NameOf(FindingKind kind);
/// "warning", in small letters.
TALHOST_API const char* NameOf(Severity severity);

} // namespace tal
