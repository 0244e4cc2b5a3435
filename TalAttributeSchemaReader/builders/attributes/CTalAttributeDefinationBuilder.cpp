#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeDefinationBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeFileBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeGroupBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

using namespace xercesc;

CTalAttributeDefinationBuilder::CTalAttributeDefinationBuilder(GuString path, DOMNode* node,
                                                               CDASchema* schema)
    : m_path(std::move(path)), m_node(node), m_schema(schema)
{
}

CTalAttributeDefinationBuilder::CTalAttributeDefinationBuilder(const CTalAttributeDefinationBuilder&) =
    default;
CTalAttributeDefinationBuilder&
CTalAttributeDefinationBuilder::operator=(const CTalAttributeDefinationBuilder&) = default;
CTalAttributeDefinationBuilder::~CTalAttributeDefinationBuilder() = default;

bool CTalAttributeDefinationBuilder::Construct()
{
    TraverseAttributeDefinationElements(m_node, m_schema);
    return true;
}

void CTalAttributeDefinationBuilder::TraverseAttributeDefinationElements(DOMNode* node, CDASchema*)
{
    if (!IsElementNamed(node, "AttributeDefinition"))
        return;
    ForEachChildElement(node, [&](NodeName name, DOMNode* list) {
        if (name == "Attributes")
            ForEachChildElement(list, "Attribute", [&](DOMNode* item) {
                CTalAttributeBuilder(m_path, CMemoryAllocator::CreateAttributeObject(m_schema), item)
                    .Construct();
            });
        else if (name == "Files")
            ForEachChildElement(list, "File", [&](DOMNode* item) {
                CTalAttributeFileBuilder(m_path, CMemoryAllocator::CreateFileObject(m_schema), item)
                    .Construct();
            });
        else if (name == "AttributeGroups")
            ForEachChildElement(list, "AttributeGroup", [&](DOMNode* item) {
                CTalAttributeGroupBuilder(m_path, CMemoryAllocator::CreateAttributeGroupObject(m_schema),
                                          item)
                    .Construct();
            });
    });
}

bool CTalAttributeDefinationBuilder::Persist()
{
    DOMNode* attributes = AppendChildElement(m_node, "Attributes");
    for (FileAttribute& attribute : tal::Attributes(*m_schema))
        CTalAttributeBuilder(m_path, &attribute, attributes).Persist();
    DOMNode* files = AppendChildElement(m_node, "Files");
    for (CSingleFile& file : tal::Files(*m_schema))
        CTalAttributeFileBuilder(m_path, &file, files).Persist();
    DOMNode* groups = AppendChildElement(m_node, "AttributeGroups");
    for (CAttributeGroup& group : tal::AttributeGroups(*m_schema))
        CTalAttributeGroupBuilder(m_path, &group, groups).Persist();
    return true;
}
