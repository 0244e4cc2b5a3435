#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeSequenceBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeSequenceBuilder::CTalAttributeSequenceBuilder(GuString path, DOMNode* node, CSingleFile* file)
    : m_path(std::move(path)), m_node(node), m_file(file)
{
}

CTalAttributeSequenceBuilder::CTalAttributeSequenceBuilder(const CTalAttributeSequenceBuilder&) = default;
CTalAttributeSequenceBuilder&
CTalAttributeSequenceBuilder::operator=(const CTalAttributeSequenceBuilder&) = default;
CTalAttributeSequenceBuilder::~CTalAttributeSequenceBuilder() = default;

bool CTalAttributeSequenceBuilder::Construct()
{
    TraverseAttributeFileSequenceElements(m_node);
    return true;
}

void CTalAttributeSequenceBuilder::TraverseAttributeFileSequenceElements(DOMNode* node)
{
    if (IsElementNamed(node, "Attribute"))
        ReadAttributes(node);
}

void CTalAttributeSequenceBuilder::ReadAttributes(DOMNode* node)
{
    ForEachAttribute(node, "IDRef", [&](GuString reference) {
        if (!reference.IsEmpty())
            m_file->SetAttributeReferenceId(std::move(reference));
    });
}

bool CTalAttributeSequenceBuilder::Persist()
{
    for (const GuString& reference : m_file->getAllAttributeReferenceId()) {
        if (!reference.IsEmpty())
            AppendElementWithAttribute(m_node, "Attribute", "IDRef", reference);
    }
    return true;
}
