#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityAttributeBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityFileBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityRulesBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeEntityBuilder::CTalAttributeEntityBuilder(GuString path, CustomEntity* entity, DOMNode* node)
    : m_entity(entity), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeEntityBuilder::CTalAttributeEntityBuilder(const CTalAttributeEntityBuilder&) = default;
CTalAttributeEntityBuilder&
CTalAttributeEntityBuilder::operator=(const CTalAttributeEntityBuilder&) = default;
CTalAttributeEntityBuilder::~CTalAttributeEntityBuilder() = default;

bool CTalAttributeEntityBuilder::Construct()
{
    TraverseAttributeEntityElements(m_node, m_entity);
    return true;
}

void CTalAttributeEntityBuilder::TraverseAttributeEntityElements(DOMNode* node, CustomEntity* entity)
{
    if (!IsElementNamed(node, "Entity"))
        return;
    ReadAttributes(node, entity);
    ForEachChildElement(node, [&](NodeName name, DOMNode* child) {
        if (name == "Definition")
            ForEachChildElement(child, [&](NodeName sequenceName, DOMNode* sequence) {
                if (sequenceName == "FileSequence")
                    CTalAttributeEntityFileBuilder(m_path, entity, sequence).Construct();
                else if (sequenceName == "AttributeSequence")
                    CTalAttributeEntityAttributeBuilder(m_path, entity, sequence).Construct();
            });
        else if (name == "Rules")
            CTalAttributeEntityRulesBuilder(m_path, entity, child).Construct();
    });
}

void CTalAttributeEntityBuilder::ReadAttributes(DOMNode* node, CustomEntity* entity)
{
    ForEachAttribute(node, [&](NodeName name, AttributeValue value) {
        if (name == "Type")
            entity->SetTypeName(value);
        else if (name == "Script")
            entity->SetScript(value);
    });
}

bool CTalAttributeEntityBuilder::Persist()
{
    DOMNode* definition = AppendChildElement(m_node, "Definition");
    DOMNode* files = AppendChildElement(definition, "FileSequence");
    for (const GuString& reference : m_entity->GetAllFileReferenceId())
        CTalAttributeEntityFileBuilder(m_path, m_entity, files, reference).Persist();
    DOMNode* attributes = AppendChildElement(definition, "AttributeSequence");
    for (const GuString& reference : m_entity->GetAllAttributeReferenceId())
        CTalAttributeEntityAttributeBuilder(m_path, m_entity, attributes, reference).Persist();
    CTalAttributeEntityRulesBuilder(m_path, m_entity, AppendChildElement(m_node, "Rules")).Persist();
    return true;
}
