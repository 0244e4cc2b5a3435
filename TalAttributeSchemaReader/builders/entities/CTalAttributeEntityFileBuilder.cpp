#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityFileBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeEntityFileBuilder::CTalAttributeEntityFileBuilder(GuString path, CustomEntity* entity,
                                                               DOMNode* node, GuString referenceId)
    : m_path(std::move(path)), m_node(node), m_entity(entity), m_referenceId(std::move(referenceId))
{
}

CTalAttributeEntityFileBuilder::CTalAttributeEntityFileBuilder(GuString path, CustomEntity* entity,
                                                               DOMNode* node)
    : CTalAttributeEntityFileBuilder(std::move(path), entity, node, GuString())
{
}

CTalAttributeEntityFileBuilder::CTalAttributeEntityFileBuilder(const CTalAttributeEntityFileBuilder&) =
    default;
CTalAttributeEntityFileBuilder&
CTalAttributeEntityFileBuilder::operator=(const CTalAttributeEntityFileBuilder&) = default;
CTalAttributeEntityFileBuilder::~CTalAttributeEntityFileBuilder() = default;

bool CTalAttributeEntityFileBuilder::Construct()
{
    TraverseFileSequenceElements(m_node, m_entity);
    return true;
}

void CTalAttributeEntityFileBuilder::TraverseFileSequenceElements(DOMNode* node, CustomEntity* entity)
{
    if (IsElementNamed(node, "FileSequence"))
        ForEachChildElement(node, "File", [&](DOMNode* child) { ReadFileSequence(child, entity); });
}

void CTalAttributeEntityFileBuilder::ReadFileSequence(DOMNode* node, CustomEntity* entity)
{
    ForEachAttribute(node, "IDRef", [&](AttributeValue value) { entity->SetFileReferenceId(value); });
}

bool CTalAttributeEntityFileBuilder::Persist()
{
    WriteAttribute(AppendChildElement(m_node, "File"), m_entity, m_referenceId);
    return true;
}

void CTalAttributeEntityFileBuilder::WriteAttribute(DOMNode* element, CustomEntity* entity,
                                                    GuString referenceId)
{
    if (entity)
        SetElementAttribute(AsElement(element), "IDRef", std::move(referenceId));
}
