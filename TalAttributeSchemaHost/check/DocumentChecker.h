// Walks a document beside the format table and says what the reader will do with it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/check/AttributeChecker.h"
#include "TalAttributeSchemaHost/check/Check.h"
#include "TalAttributeSchemaHost/check/FindingLog.h"
#include "TalAttributeSchemaHost/check/FixProposals.h"
#include "TalAttributeSchemaHost/check/OpenElements.h"
#include "TalAttributeSchemaHost/check/ReferenceChecker.h"
#include "TalAttributeSchemaHost/check/SuppressionComments.h"
#include "TalAttributeSchemaHost/findings/ElementPath.h"
#include "TalAttributeSchemaHost/platform/CodePage.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"
#include "TalAttributeSchemaHost/table/KnownAttributes.h"

namespace tal {

/// By what they define, in their order.
using ObjectTags = std::map<Definition, std::vector<std::size_t>>;

/// Memory grows with the findings that are kept, the definitions and the references that come before their
/// definitions, never with the depth of a document: below an element that is skipped, only definitions are
/// kept.
class DocumentChecker final : public DocumentVisitor
{
public:
    /// `codePage` is that of a host that will write the document; null for UTF-8. Of the options, those count
    /// that say what is looked for and kept; of too many findings, besides the first ones, also the first
    /// error of each kind.
    DocumentChecker(const CodePage* codePage, const CheckOptions& options);
    DocumentChecker(const DocumentChecker&) = delete; // its parts know each other
    DocumentChecker& operator=(const DocumentChecker&) = delete;

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
    const std::map<FindingId, std::size_t>& GetOmitted() const { return m_log.GetOmitted(); }
    /// The tags of what the model lists, where the options keep places. Call once, after the scan.
    ObjectTags TakeObjects() { return std::move(m_objects); }
    /// Likewise: the comments that ask not to be told of something.
    std::vector<Suppression> TakeSuppressions() { return m_comments.Take(); }

private:
    bool Enter(const XMLCh* name, const std::vector<XmlAttribute>& attributes, std::size_t markup);
    const ElementRule* FindRule(const XMLCh* name, std::size_t markup);
    bool CheckElement();
    bool IsSelected(const ElementRule& rule);
    bool CheckContent();
    void KeepObject();
    void ReportUnknownElement(const XMLCh* name, std::size_t number, std::size_t markup);
    void EndUnread(std::size_t markup);

    std::uint64_t Depth() const { return m_open.GetDepth() + m_skipped; }

    ElementPath m_path; // of the open elements
    FindingLog m_log;
    OpenElements m_open;
    ReferenceChecker m_references;
    KnownAttributes m_known; // of the innermost open element, while it begins
    AttributeChecker m_attributes;
    SuppressionComments m_comments;
    const bool m_keepObjects;
    const bool m_readComments;
    ObjectTags m_objects;
    std::uint64_t m_skipped = 0;        // levels below the last open element that nobody reads
    std::optional<std::size_t> m_cause; // the finding about the element that is skipped with those below
    std::uint64_t m_entities = 0;       // that are open
    std::string m_entityName;           // of the outermost one
    std::size_t m_entityMarkup = 0;
    bool m_inRenamed = false;              // in an element that is not read, but may have been meant to be
    std::optional<FixProposal> m_rootName; // of a root that is not read, without its end tag
    bool m_complete = true;
    bool m_readable = true; // but for the name of the root
};

} // namespace tal
