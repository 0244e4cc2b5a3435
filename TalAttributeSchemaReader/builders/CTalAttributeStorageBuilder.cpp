#include "TalAttributeSchemaReader/builders/CTalAttributeStorageBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeStorageBuilder::CTalAttributeStorageBuilder(GuString path, CStorage* storage, DOMNode* node)
    : m_path(std::move(path)), m_node(node), m_storage(storage)
{
}

bool CTalAttributeStorageBuilder::Construct()
{
    TraverseStorageElements(m_node, m_storage);
    return true;
}

void CTalAttributeStorageBuilder::TraverseStorageElements(DOMNode* node, CStorage* storage)
{
    if (!IsElementNamed(node, "Storage"))
        return;
    ForEachChildElement(node, [&](NodeName name, DOMNode* child) {
        const auto value = NamedAttribute(child, "Value");
        if (!value)
            return;
        if (name == "WorkingDirectory")
            storage->SetWorkingDirectory(*value);
        else if (name == "SharedLocation")
            storage->SetSharedLocation(*value);
        else if (name == "StorageType")
            storage->SetStorageType(*value);
    });
}

bool CTalAttributeStorageBuilder::Persist()
{
    if (!m_storage)
        return true;
    AppendElementWithAttribute(m_node, "WorkingDirectory", "Value", m_storage->GetWorkingDirectory());
    AppendElementWithAttribute(m_node, "SharedLocation", "Value", m_storage->GetSharedLocation());
    AppendElementWithAttribute(m_node, "StorageType", "Value", m_storage->GetStorageType());
    return true;
}
