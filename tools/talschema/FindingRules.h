// What `talschema check` can find: identifiers that stay as they are, so that people can rely on them.
#pragma once

#include <array>
#include <cstddef>
#include <string>

/// One for each kind of finding; `None` where a rule of the format has nothing to report.
enum class FindingId
{
    None,
    NotWellFormed,
    NotValid,
    ParserWarning,
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
    Count
};

enum class Severity
{
    Error,
    Warning,
    Note
};

enum class FindingKind
{
    Unreadable, // nothing of the document is read
    Skipped,    // the reader passes over it
    Value,      // the reader takes it for something else
    Reference,  // the reader does not check it
    External,   // reading reaches outside the document
    Lost        // read, but not there any more after a rewrite
};

struct FindingRule
{
    FindingId id;
    const char* identifier;
    FindingKind kind;
    const char* summary;
};

/// One rule for every `FindingId` but `None`.
extern const std::array<FindingRule, static_cast<std::size_t>(FindingId::Count) - 1> kFindingRules;

/// `id` must not be `None`.
const FindingRule& RuleOf(FindingId id);
Severity SeverityOf(FindingKind kind);
const char* NameOf(FindingKind kind);
const char* NameOf(Severity severity);
