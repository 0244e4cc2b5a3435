#include "TalAttributeSchemaHost/compact/CompactReader.h"

#include "TalAttributeSchemaReader/format/FolderDepth.h"

namespace tal {

void CompactReader::OnProblem(Problem, const GuString&, const Anchor&)
{
    m_document.reset();
}

void CompactReader::OnExternalReference(const GuString&, const GuString&, const Anchor&)
{
    m_hasExternalReferences = true;
}

void CompactReader::OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                                   std::size_t)
{
    if (!m_document)
        return;
    if (m_skipped > 0 || m_entities > 0 || m_open.size() == kMaxElementDepth) {
        ++m_skipped;
        return;
    }
    CompactElement& element = m_document->MakeElement(name);
    if (!attributes.empty()) {
        element.ReserveAttributes(attributes.size());
        for (const XmlAttribute& attribute : attributes)
            element.AddAttribute(attribute.name, attribute.value);
        element.SortAttributes();
    }
    if (m_open.empty())
        m_document->SetRoot(element);
    else
        m_open.back()->Append(element);
    m_open.push_back(&element);
}

void CompactReader::OnEndElement(std::size_t)
{
    if (!m_document)
        return;
    if (m_skipped > 0)
        --m_skipped;
    else
        m_open.pop_back();
}

} // namespace tal
