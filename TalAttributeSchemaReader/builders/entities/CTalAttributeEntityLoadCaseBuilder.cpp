#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityLoadCaseBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

using namespace xercesc;

namespace {

template <class Folders>
void WriteFolders(DOMNode* parent, const Folders& folders, int level)
{
    if (level > kMaxFolderDepth)
        return;
    for (const CAttributeFolders& folder : folders) {
        DOMElement* element =
            AppendElementWithAttribute(parent, "AttributeFolder", "Name", folder.GetAttributeFolderName());
        AppendReferences(element, "Attribute", folder.GetAllAttributeReferences());
        WriteFolders(element, tal::SubFolders(folder), level + 1);
    }
}

} // namespace

CTalAttributeEntityLoadCaseBuilder::CTalAttributeEntityLoadCaseBuilder(GuString path,
                                                                       CLoadCaseTemplate* loadCaseTemplate,
                                                                       DOMNode* node)
    : m_loadCaseTemplate(loadCaseTemplate), m_path(std::move(path)), m_node(node), m_entity(nullptr)
{
}

CTalAttributeEntityLoadCaseBuilder::CTalAttributeEntityLoadCaseBuilder(GuString path, CustomEntity* entity,
                                                                       DOMNode* node)
    : m_loadCaseTemplate(nullptr), m_path(std::move(path)), m_node(node), m_entity(entity)
{
}

CTalAttributeEntityLoadCaseBuilder::CTalAttributeEntityLoadCaseBuilder(
    const CTalAttributeEntityLoadCaseBuilder&) = default;
CTalAttributeEntityLoadCaseBuilder&
CTalAttributeEntityLoadCaseBuilder::operator=(const CTalAttributeEntityLoadCaseBuilder&) = default;
CTalAttributeEntityLoadCaseBuilder::~CTalAttributeEntityLoadCaseBuilder() = default;

bool CTalAttributeEntityLoadCaseBuilder::Construct()
{
    TraverseEntityLoadCaseElements(m_node);
    return true;
}

void CTalAttributeEntityLoadCaseBuilder::TraverseEntityLoadCaseElements(DOMNode* node)
{
    if (!IsElementNamed(node, "LoadCaseTemplates"))
        return;
    ForEachChildElement(node, "Condition", [&](DOMNode* condition) {
        CLoadCaseTemplate* loadCaseTemplate = CMemoryAllocator::CreateLoadCaseTemplateObject(m_entity);
        ReadAttributesCondition(condition, loadCaseTemplate);
        ForEachChildElement(condition, "AttributeFolder", [&](DOMNode* child) {
            if (CAttributeFolders* folder = CMemoryAllocator::CreateAttributeFolderObject(loadCaseTemplate))
                ReadAttributesFolder(child, folder);
        });
    });
}

void CTalAttributeEntityLoadCaseBuilder::ReadAttributesCondition(DOMNode* node,
                                                                 CLoadCaseTemplate* loadCaseTemplate)
{
    ForEachAttribute(node, [&](NodeName name, AttributeValue value) {
        if (name == "AttributeRef")
            loadCaseTemplate->SetConditionName(value);
        else if (name == "Value")
            loadCaseTemplate->SetConditionValue(value);
    });
}

void CTalAttributeEntityLoadCaseBuilder::ReadAttributesFolder(DOMNode* node, CAttributeFolders* folder)
{
    ReadFolder(node, folder, 1);
}

void CTalAttributeEntityLoadCaseBuilder::ReadFolder(DOMNode* node, CAttributeFolders* folder, int level)
{
    if (!node->hasAttributes())
        return;
    ForEachAttribute(node, "Name", [&](AttributeValue value) { folder->SetAttributeFolderName(value); });
    ForEachChildElement(node, "Attribute", [&](DOMNode* child) { ReadAttributes(child, folder); });
    if (level == kMaxFolderDepth)
        return;
    ForEachChildElement(node, "AttributeFolder", [&](DOMNode* child) {
        if (CAttributeFolders* subFolder = CMemoryAllocator::CreateAttributeFolderObject(folder))
            ReadFolder(child, subFolder, level + 1);
    });
}

void CTalAttributeEntityLoadCaseBuilder::ReadAttributes(DOMNode* node, CAttributeFolders* folder)
{
    ForEachAttribute(node, "IDRef", [&](AttributeValue value) { folder->SetAttributeReferences(value); });
}

bool CTalAttributeEntityLoadCaseBuilder::Persist()
{
    if (!m_loadCaseTemplate)
        return true;
    DOMElement* condition = AppendChildElement(m_node, "Condition");
    WriteConditionAttribute(condition, m_loadCaseTemplate);
    WriteFolders(condition, tal::Folders(*m_loadCaseTemplate), 1);
    return true;
}

void CTalAttributeEntityLoadCaseBuilder::WriteConditionAttribute(DOMNode* node,
                                                                 CLoadCaseTemplate* loadCaseTemplate)
{
    DOMElement* element = AsElement(node);
    SetElementAttribute(element, "AttributeRef", loadCaseTemplate->GetConditionName());
    SetElementAttribute(element, "Value", loadCaseTemplate->GetConditionValue());
}

void CTalAttributeEntityLoadCaseBuilder::WriteAttributeFoldersRecursive(DOMNode* element,
                                                                        CAttributeFolders* folder)
{
    if (element && folder)
        WriteFolders(element, tal::SubFolders(*folder), 2);
}
