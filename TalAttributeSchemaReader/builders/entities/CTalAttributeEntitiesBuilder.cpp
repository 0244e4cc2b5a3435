#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntitiesBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

using namespace xercesc;

CTalAttributeEntitiesBuilder::CTalAttributeEntitiesBuilder(GuString path, CDASchema* schema, DOMNode* node)
    : m_schema(schema), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeEntitiesBuilder::CTalAttributeEntitiesBuilder(const CTalAttributeEntitiesBuilder&) = default;
CTalAttributeEntitiesBuilder&
CTalAttributeEntitiesBuilder::operator=(const CTalAttributeEntitiesBuilder&) = default;
CTalAttributeEntitiesBuilder::~CTalAttributeEntitiesBuilder() = default;

bool CTalAttributeEntitiesBuilder::Construct()
{
    TraverseAttributeEntitiesElements(m_node, m_schema);
    return true;
}

void CTalAttributeEntitiesBuilder::TraverseAttributeEntitiesElements(DOMNode* node, CDASchema*)
{
    if (!IsElementNamed(node, "Entities"))
        return;
    ForEachChildElement(node, "Entity", [&](DOMNode* child) {
        if (CustomEntity* entity = CMemoryAllocator::GetNewChildCustomEntity(m_schema))
            CTalAttributeEntityBuilder(m_path, entity, child).Construct();
    });
}

bool CTalAttributeEntitiesBuilder::Persist()
{
    for (CustomEntity& entity : tal::Entities(*m_schema)) {
        DOMElement* element = AppendChildElement(m_node, "Entity");
        WriteAttribute(element, &entity);
        CTalAttributeEntityBuilder(m_path, &entity, element).Persist();
    }
    return true;
}

void CTalAttributeEntitiesBuilder::WriteAttribute(DOMNode* node, CustomEntity* entity)
{
    if (!entity)
        return;
    DOMElement* element = AsElement(node);
    SetElementAttribute(element, "Type", entity->GetTypeName());
    SetElementAttribute(element, "Script", entity->GetScript());
}
