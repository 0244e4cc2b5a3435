// The root "Model" and its sections, between the DOM and the schema.
#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/CTalAttributeStorageBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeDefinationBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntitiesBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"

using namespace xercesc;

CTalAttributeModelBuilder::CTalAttributeModelBuilder(GuString path, void*)
    : m_schema(nullptr), m_path(std::move(path))
{
    m_schema = new CDASchema;
}

CTalAttributeModelBuilder::CTalAttributeModelBuilder(GuString path, CDASchema* schema, void*)
    : m_schema(schema), m_path(std::move(path))
{
}

CTalAttributeModelBuilder::~CTalAttributeModelBuilder() = default;

void CTalAttributeModelBuilder::TraverseModelElements(DOMNode* root)
{
    if (!IsElementNamed(root, "Model"))
        return;
    ForEachChildElement(root, [&](NodeName name, DOMNode* section) {
        if (name == "Storage")
            CTalAttributeStorageBuilder(m_path, CMemoryAllocator::GetStorageObject(m_schema), section)
                .Construct();
        else if (name == "AttributeDefinition")
            CTalAttributeDefinationBuilder(m_path, section, m_schema).Construct();
        else if (name == "Entities")
            CTalAttributeEntitiesBuilder(m_path, m_schema, section).Construct();
    });
}

void CTalAttributeModelBuilder::WriteModelElements(DOMNode* root)
{
    if (!m_schema)
        return;
    DOMElement* storage = AppendChildElement(root, "Storage");
    if (m_schema->GetStorage())
        CTalAttributeStorageBuilder(m_path, m_schema->GetStorage(), storage).Persist();
    CTalAttributeDefinationBuilder(m_path, AppendChildElement(root, "AttributeDefinition"), m_schema)
        .Persist();
    CTalAttributeEntitiesBuilder(m_path, m_schema, AppendChildElement(root, "Entities")).Persist();
}
