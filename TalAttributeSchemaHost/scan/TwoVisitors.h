// One pass over a document for two.
#pragma once

#include <cstddef>
#include <vector>

#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

/// Tells two visitors, one after the other.
class TwoVisitors final : public DocumentVisitor
{
public:
    TwoVisitors(DocumentVisitor& first, DocumentVisitor& second) : m_first(first), m_second(second) {}

    void OnProblem(Problem problem, const GuString& text, const Anchor& anchor) override
    {
        m_first.OnProblem(problem, text, anchor);
        m_second.OnProblem(problem, text, anchor);
    }
    void OnExternalReference(const GuString& entity, const GuString& target, const Anchor& anchor) override
    {
        m_first.OnExternalReference(entity, target, anchor);
        m_second.OnExternalReference(entity, target, anchor);
    }
    void OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                        std::size_t markup) override
    {
        m_first.OnStartElement(name, attributes, markup);
        m_second.OnStartElement(name, attributes, markup);
    }
    void OnEndElement(std::size_t markup) override
    {
        m_first.OnEndElement(markup);
        m_second.OnEndElement(markup);
    }
    void OnText(const Anchor& anchor) override
    {
        m_first.OnText(anchor);
        m_second.OnText(anchor);
    }
    void OnStartEntity(const XMLCh* name, std::size_t markup) override
    {
        m_first.OnStartEntity(name, markup);
        m_second.OnStartEntity(name, markup);
    }
    void OnEndEntity() override
    {
        m_first.OnEndEntity();
        m_second.OnEndEntity();
    }
    void OnComment(const XMLCh* text, std::size_t markup) override
    {
        m_first.OnComment(text, markup);
        m_second.OnComment(text, markup);
    }

private:
    DocumentVisitor& m_first;
    DocumentVisitor& m_second;
};

} // namespace tal
