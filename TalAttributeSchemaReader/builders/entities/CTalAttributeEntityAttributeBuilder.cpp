#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityAttributeBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeEntityAttributeBuilder::CTalAttributeEntityAttributeBuilder(GuString path, CustomEntity* entity,
                                                                         DOMNode* node, GuString referenceId)
    : m_path(std::move(path)), m_node(node), m_entity(entity), m_referenceId(std::move(referenceId))
{
}

CTalAttributeEntityAttributeBuilder::CTalAttributeEntityAttributeBuilder(GuString path, CustomEntity* entity,
                                                                         DOMNode* node)
    : CTalAttributeEntityAttributeBuilder(std::move(path), entity, node, GuString())
{
}

CTalAttributeEntityAttributeBuilder::CTalAttributeEntityAttributeBuilder(
    const CTalAttributeEntityAttributeBuilder&) = default;
CTalAttributeEntityAttributeBuilder&
CTalAttributeEntityAttributeBuilder::operator=(const CTalAttributeEntityAttributeBuilder&) = default;
CTalAttributeEntityAttributeBuilder::~CTalAttributeEntityAttributeBuilder() = default;

bool CTalAttributeEntityAttributeBuilder::Construct()
{
    TraverseAttributeSequenceElements(m_node, m_entity);
    return true;
}

void CTalAttributeEntityAttributeBuilder::TraverseAttributeSequenceElements(DOMNode* node,
                                                                            CustomEntity* entity)
{
    if (IsElementNamed(node, "AttributeSequence"))
        ForEachChildElement(node, "Attribute", [&](DOMNode* child) { ReadAttributes(child, entity); });
}

void CTalAttributeEntityAttributeBuilder::ReadAttributes(DOMNode* node, CustomEntity* entity)
{
    ForEachAttribute(node, "IDRef", [&](AttributeValue value) { entity->SetAttributeReferenceId(value); });
}

bool CTalAttributeEntityAttributeBuilder::Persist()
{
    WriteAttribute(AppendChildElement(m_node, "Attribute"), m_entity, m_referenceId);
    return true;
}

void CTalAttributeEntityAttributeBuilder::WriteAttribute(DOMNode* element, CustomEntity* entity,
                                                         GuString referenceId)
{
    if (entity)
        SetElementAttribute(AsElement(element), "IDRef", std::move(referenceId));
}
