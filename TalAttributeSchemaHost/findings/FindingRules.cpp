#include "TalAttributeSchemaHost/findings/FindingRules.h"

namespace tal {

namespace {

constexpr FindingRules kRules = {{
    {FindingId::UnreadableFile, "unreadable-file", FindingKind::System, "a file that cannot be read"},
    {FindingId::SystemFailure, "system-failure", FindingKind::System,
     "memory that ran out, or an XML library that does not start"},
    {FindingId::NotWellFormed, "not-well-formed", FindingKind::Unreadable,
     "text that is not well-formed XML"},
    {FindingId::InvalidByte, "invalid-byte", FindingKind::Unreadable,
     "a byte that means nothing in the document's encoding"},
    {FindingId::UnsupportedVersion, "unsupported-version", FindingKind::Unreadable,
     "an XML version other than 1.0 and 1.1"},
    {FindingId::NotValid, "not-valid", FindingKind::Unreadable,
     "a document that violates its own document type"},
    {FindingId::ParserWarning, "parser-warning", FindingKind::Unreadable, "a warning of the XML parser"},
    {FindingId::OutsideFolder, "outside-folder", FindingKind::Unreadable,
     "a document that needs something from outside of its own folder"},
    {FindingId::Expansion, "expansion", FindingKind::Unreadable,
     "a document that expands beyond what is read"},
    {FindingId::WrongRoot, "wrong-root", FindingKind::Unreadable, "a root element other than \"Model\""},
    {FindingId::UnknownElement, "unknown-element", FindingKind::Skipped, "an element that nobody knows"},
    {FindingId::ElementCase, "element-case", FindingKind::Skipped, "an element name in another letter case"},
    {FindingId::MisplacedElement, "misplaced-element", FindingKind::Skipped,
     "a known element in a place where it is not read"},
    {FindingId::EntityContent, "entity-content", FindingKind::Skipped,
     "an element that comes out of an entity"},
    {FindingId::UnknownAttribute, "unknown-attribute", FindingKind::Skipped,
     "an attribute that nobody knows"},
    {FindingId::AttributeCase, "attribute-case", FindingKind::Skipped,
     "an attribute name in another letter case"},
    {FindingId::SupersededAttribute, "superseded-attribute", FindingKind::Skipped,
     "an attribute of a generator that stands there twice, in different letter case"},
    {FindingId::MissingAttribute, "missing-attribute", FindingKind::Skipped,
     "an element without the attribute that makes it count"},
    {FindingId::ReaderWithoutAttributes, "reader-without-attributes", FindingKind::Skipped,
     "a reader of an option without any attribute"},
    {FindingId::FlagValue, "flag-value", FindingKind::Value, "a flag that is neither Yes nor No"},
    {FindingId::TextContent, "text-content", FindingKind::Value,
     "text between tags, where only attributes count"},
    {FindingId::CodePage, "code-page", FindingKind::Value,
     "a character that the host's code page lacks, see --code-page"},
    {FindingId::UnknownReference, "unknown-reference", FindingKind::Reference,
     "a reference that names no definition"},
    {FindingId::DuplicateId, "duplicate-id", FindingKind::Reference, "an ID that is defined twice"},
    {FindingId::DuplicateType, "duplicate-type", FindingKind::Reference, "two entities of one type"},
    {FindingId::ExternalReference, "external-reference", FindingKind::External,
     "a document type or an entity that refers to a file or to the network"},
    {FindingId::UseInComparison, "use-in-comparison", FindingKind::Lost, "the use-in-comparison flag"},
    {FindingId::CreationType, "creation-type", FindingKind::Lost, "the creation type of a generator"},
    {FindingId::GroupGenerator, "group-generator", FindingKind::Lost, "the generator of an attribute group"},
    {FindingId::EmptyGenerator, "empty-generator", FindingKind::Lost, "a generator without any element"},
    {FindingId::OtherType, "other-type", FindingKind::Lost,
     "an element that is written for another type of entity or generator only"},
    {FindingId::EmptyReference, "empty-reference", FindingKind::Lost, "an empty reference of a file kind"},
    {FindingId::EmptyResource, "empty-resource", FindingKind::Lost, "an empty resource of a generator"},
    {FindingId::Filters, "filters", FindingKind::Lost, "filters"},
    {FindingId::IgnoredContent, "ignored-content", FindingKind::Lost,
     "what stands in \"Update\", \"Delete\" or \"LoadCaseGroups\""},
    {FindingId::AssemblyScript, "assembly-script", FindingKind::Lost, "the script of an assembly"},
    {FindingId::FolderWithoutAttributes, "folder-without-attributes", FindingKind::Lost,
     "what stands in a folder without attributes"},
    {FindingId::FolderTooDeep, "folder-too-deep", FindingKind::Lost, "a folder below the deepest level"},
    {FindingId::MergedElement, "merged-element", FindingKind::Lost,
     "a second element of which one is written only"},
    {FindingId::RenamedAttribute, "renamed-attribute", FindingKind::Lost,
     "the spelling of an attribute of a generator"},
    {FindingId::NamespaceAttribute, "namespace-attribute", FindingKind::Lost,
     "an attribute that belongs to XML and not to the format"},
    {FindingId::UnwritableCharacter, "unwritable-character", FindingKind::Lost,
     "a character that a written document cannot carry"},
    {FindingId::StaleSuppression, "stale-suppression", FindingKind::Suppression,
     "a comment that suppresses nothing"},
    {FindingId::UnknownSuppression, "unknown-suppression", FindingKind::Suppression,
     "a comment that asks for something that cannot be suppressed"},
}};

constexpr bool EveryIdHasItsRow()
{
    for (std::size_t i = 0; i < kRules.size(); ++i) {
        if (kRules[i].id != static_cast<FindingId>(i + 1) || !kRules[i].identifier || !kRules[i].summary)
            return false;
    }
    return true;
}
static_assert(EveryIdHasItsRow(), "a finding without its row, or a row out of order");

} // namespace

const FindingRules& AllFindingRules()
{
    return kRules;
}

const FindingRule& RuleOf(FindingId id)
{
    return kRules[static_cast<std::size_t>(id) - 1];
}

Severity SeverityOf(FindingKind kind)
{
    switch (kind) {
    case FindingKind::System:
    case FindingKind::Unreadable:
        return Severity::Error;
    case FindingKind::Lost:
        return Severity::Note;
    default:
        return Severity::Warning;
    }
}

const char* NameOf(FindingKind kind)
{
    switch (kind) {
    case FindingKind::System:
        return "system";
    case FindingKind::Unreadable:
        return "unreadable";
    case FindingKind::Skipped:
        return "skipped";
    case FindingKind::Value:
        return "value";
    case FindingKind::Reference:
        return "reference";
    case FindingKind::External:
        return "external";
    case FindingKind::Lost:
        return "lost";
    case FindingKind::Suppression:
        return "suppression";
    }
    return "";
}

const char* NameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Note:
        return "note";
    }
    return "";
}

} // namespace tal
