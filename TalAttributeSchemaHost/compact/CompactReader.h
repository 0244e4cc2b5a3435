// Keeps what the builders read of a document while it is scanned.
#pragma once

#include <memory>
#include <vector>

#include "TalAttributeSchemaHost/compact/CompactDocument.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

/// Makes the tree that a walk over the XML library's own DOM would see: no text, nothing that comes out of an
/// entity between elements, nothing deeper than any element of the format.
class CompactReader final : public DocumentVisitor
{
public:
    /// The root "Model"; null when anything was reported, or before the scan. Belongs to this object.
    xercesc::DOMElement* Root() const { return m_document ? m_document->getDocumentElement() : nullptr; }
    /// True when the document refers to anything outside of itself.
    bool HasExternalReferences() const { return m_hasExternalReferences; }

    /// Nothing is kept from here on.
    void OnProblem(Problem problem, const GuString& text, const Anchor& anchor) override;
    void OnExternalReference(const GuString& entity, const GuString& target, const Anchor& anchor) override;
    void OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                        std::size_t markup) override;
    void OnEndElement(std::size_t markup) override;
    void OnStartEntity(const XMLCh*, std::size_t) override { ++m_entities; }
    void OnEndEntity() override { --m_entities; }

private:
    std::unique_ptr<CompactDocument> m_document = std::make_unique<CompactDocument>(); // null after a report
    std::vector<CompactElement*> m_open;
    std::size_t m_skipped = 0;  // levels below the last open element that are not kept
    std::size_t m_entities = 0; // that are open
    bool m_hasExternalReferences = false;
};

} // namespace tal
