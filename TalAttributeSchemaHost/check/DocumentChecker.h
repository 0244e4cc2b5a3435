// Walks a document beside the format table and says what the reader will do with it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/check/ElementPath.h"
#include "TalAttributeSchemaHost/check/FindingMessages.h"
#include "TalAttributeSchemaHost/check/FixProposals.h"
#include "TalAttributeSchemaHost/check/FormatTable.h"
#include "TalAttributeSchemaHost/check/References.h"
#include "TalAttributeSchemaHost/check/Suppressions.h"
#include "TalAttributeSchemaHost/platform/CodePage.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

/// A finding whose place is not looked up yet.
struct PlacelessFinding
{
    FindingId id;
    Anchor anchor;
    std::string path;
    std::string subject;
    std::string suggestion;
    Sentence sentence;
    std::unique_ptr<Anchor> earlier; // of the definition whose line the sentence names, or null
    std::optional<std::size_t> cause = std::nullopt; // the number of the finding from which this one follows
    std::vector<PlacelessEdit> edits = {};           // that put it right, where that is certain
    std::string identity = {};
};

/// By what they define, in their order.
using ObjectTags = std::map<Definition, std::vector<std::size_t>>;

/// Memory grows with the findings that are kept, the definitions and the references that come before their
/// definitions, never with the depth of a document: below an element that is skipped, only definitions are
/// kept.
class DocumentChecker final : public DocumentVisitor
{
public:
    /// `codePage` is that of a host that will write the document; null for UTF-8. Of more than `mostFindings`
    /// findings only the first ones are kept, and the first error of each kind. `keepObjects` says whether
    /// `TakeObjects` has something to give.
    DocumentChecker(const CodePage* codePage, std::size_t mostFindings, bool keepObjects);

    void OnProblem(Problem problem, const GuString& text, const Anchor& anchor) override;
    void OnExternalReference(const GuString& entity, const GuString& target, const Anchor& anchor) override;
    void OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                        std::size_t markup) override;
    void OnEndElement(std::size_t markup) override;
    void OnText(const Anchor& anchor) override;
    void OnStartEntity(const XMLCh* name, std::size_t markup) override;
    void OnEndEntity() override;
    void OnComment(const XMLCh* text, std::size_t markup) override;

    /// Call once, after the scan.
    std::vector<PlacelessFinding> TakeFindings();
    /// How many findings of each kind `TakeFindings` leaves out.
    const std::map<FindingId, std::size_t>& GetOmitted() const { return m_omitted; }
    /// The tags of what the model lists. Call once, after the scan.
    ObjectTags TakeObjects() { return std::move(m_objects); }
    /// Likewise: the comments that ask not to be told of something.
    std::vector<Suppression> TakeSuppressions() { return std::move(m_suppressions); }

private:
    struct OpenElement
    {
        const ElementRule* rule;
        std::size_t markup;
        std::size_t number = 1;      // among the siblings of its name
        bool written = true;         // a rewrite keeps it
        bool merged = false;         // read like more of one that came before
        int level = 0;               // of nested folders
        std::size_t selector = 0;    // the open element whose attribute selects what is written
        GuString selected;           // if it is this one: the attribute's value
        Match selects = Match::None; // and how it is compared
        FindingId contentFinding = FindingId::None; // to be reported once, when there is content
        bool contentRead = true;
        bool hasElements = false;
        bool hasText = false;
        std::size_t numbers = 0; // where in `m_numbers` those of the elements in it begin
        std::map<std::string, std::size_t> strangers; // how many there are so far of those the format lacks
        ElementRenames renames = {};                  // of elements in it
    };

    struct OpenSuppression
    {
        std::size_t index;
        std::uint64_t depth; // of the elements around it
    };

    /// What a finding is about, besides its anchor.
    struct About
    {
        std::string subject;
        std::string suggestion = {};
    };

    void Open(OpenElement element, const std::vector<XmlAttribute>& attributes);
    void Close();
    bool Enter(const XMLCh* name, const std::vector<XmlAttribute>& attributes, std::size_t markup);
    bool CheckElement(const std::vector<XmlAttribute>& attributes);
    bool CheckAttributes(const std::vector<XmlAttribute>& attributes);
    bool CheckAttribute(const AttributeRule& rule, const XmlAttribute& attribute,
                        const std::vector<XmlAttribute>& attributes);
    void CheckValue(const AttributeRule& rule, const XmlAttribute& attribute);
    void CheckUnreadValue(const AttributeRule& rule, const XmlAttribute& unread,
                          const std::vector<XmlAttribute>& attributes);
    void CheckCodePage(const XmlAttribute& attribute);
    void CheckUnreadAttribute(const XmlAttribute& attribute);
    bool CheckContent();
    void KeepObject();
    void ReportUnknownElement(const XMLCh* name, std::size_t number, std::size_t markup);
    void EndUnread(std::size_t markup);
    void EndSuppressions(std::size_t markup);
    void Fix(std::vector<FixProposal> proposals);

    void HideDefinition(const XMLCh* name, const std::vector<XmlAttribute>& attributes, std::size_t markup);
    void ReportDangling();
    void Define(const AttributeRule& rule, XmlView id);
    void Refer(const AttributeRule& rule, XmlView id);

    std::uint64_t Depth() const { return m_open.size() + m_skipped; }
    /// Of the innermost open element.
    Anchor Tag() const { return {AnchorKind::TagName, m_open.back().markup}; }
    Anchor AttributeOf(AnchorKind kind, const XMLCh* name) const;
    std::string Name() const { return m_open.back().rule->name; }

    /// Returns the finding, which is nobody's when it is not kept.
    PlacelessFinding& Report(FindingId id, Anchor anchor, About about, Sentence sentence);
    bool Keeps(FindingId id);
    /// As `Report`, unless the innermost open element is lost anyway. Null when nothing is kept.
    PlacelessFinding* ReportLost(FindingId id, Anchor anchor, About about, Sentence sentence);

    const CodePage* m_codePage;
    bool m_keepObjects;
    ObjectTags m_objects;
    std::vector<OpenElement> m_open;
    std::vector<std::size_t> m_numbers;       // of elements so far, for every rule of every open element
    std::vector<const XmlAttribute*> m_taken; // by a rule, of the element that is checked
    ElementPath m_path;                       // of the open elements
    std::uint64_t m_skipped = 0;              // levels below the last open element that nobody reads
    std::optional<std::size_t> m_cause; // the finding about the element that is skipped with those below
    std::uint64_t m_entities = 0;       // that are open
    std::string m_entityName;           // of the outermost one
    std::size_t m_entityMarkup = 0;
    References m_references;
    AttributeRenames m_renames;            // in the innermost open element
    bool m_inRenamed = false;              // in an element that is not read, but may have been meant to be
    std::optional<FixProposal> m_rootName; // of a root that is not read, without its end tag
    bool m_complete = true;
    std::size_t m_mostFindings;
    bool m_readable = true; // but for the name of the root
    std::vector<Suppression> m_suppressions;
    std::vector<OpenSuppression> m_openSuppressions;
    std::vector<PlacelessFinding> m_findings;
    bool m_kept = false;          // the finding that was reported last
    std::set<FindingId> m_errors; // that are kept
    std::map<FindingId, std::size_t> m_omitted;
    PlacelessFinding m_nobodys{};
};

} // namespace tal
