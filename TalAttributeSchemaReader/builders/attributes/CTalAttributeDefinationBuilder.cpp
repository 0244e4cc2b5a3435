// The "AttributeDefinition" section: attribute definitions, file kinds and attribute groups.
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeDefinationBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/ModelWalk.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeFileBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeGroupBuilder.h"
#include "TalAttributeSchemaReader/document/DomHelpers.h"
#include "TalAttributeSchemaReader/document/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"

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
    ForEachObject<FileAttribute>(m_schema->GetAttributeList(), [&](FileAttribute* attribute) {
        CTalAttributeBuilder(m_path, attribute, attributes).Persist();
    });
    DOMNode* files = AppendChildElement(m_node, "Files");
    ForEachObject<CSingleFile>(m_schema->GetFileList(), [&](CSingleFile* file) {
        CTalAttributeFileBuilder(m_path, file, files).Persist();
    });
    DOMNode* groups = AppendChildElement(m_node, "AttributeGroups");
    ForEachObject<CAttributeGroup>(m_schema->GetAttributeGroupList(), [&](CAttributeGroup* group) {
        CTalAttributeGroupBuilder(m_path, group, groups).Persist();
    });
    return true;
}
