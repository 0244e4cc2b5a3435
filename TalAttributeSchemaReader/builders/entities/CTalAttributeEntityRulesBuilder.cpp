#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityRulesBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityChildrenBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityFilterBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityLoadCaseBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeReaderBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

using namespace xercesc;

namespace {

DOMElement* AppendNameAndValue(DOMNode* parent, const char* tagName, const GuString& name,
                               const GuString& value)
{
    DOMElement* element = AppendElementWithAttribute(parent, tagName, "Name", name);
    SetElementAttribute(element, "Value", value);
    return element;
}

void WriteRules(DOMNode* create, const CCreationRules* rules)
{
    if (!rules)
        return;
    for (const auto& [name, value] : tal::Rules(*rules))
        AppendNameAndValue(create, "Rule", name, value);
}

void WriteUpdateAndDelete(DOMNode* node)
{
    AppendChildElement(node, "Update");
    AppendChildElement(node, "Delete");
}

} // namespace

CTalAttributeEntityRulesBuilder::CTalAttributeEntityRulesBuilder(GuString path,
                                                                 CChildrenCreation* childrenCreation,
                                                                 DOMNode* node)
    : m_entity(nullptr), m_childrenCreation(childrenCreation), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeEntityRulesBuilder::CTalAttributeEntityRulesBuilder(GuString path, CustomEntity* entity,
                                                                 DOMNode* node)
    : m_entity(entity), m_childrenCreation(nullptr), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeEntityRulesBuilder::CTalAttributeEntityRulesBuilder(const CTalAttributeEntityRulesBuilder&) =
    default;
CTalAttributeEntityRulesBuilder&
CTalAttributeEntityRulesBuilder::operator=(const CTalAttributeEntityRulesBuilder&) = default;
CTalAttributeEntityRulesBuilder::~CTalAttributeEntityRulesBuilder() = default;

bool CTalAttributeEntityRulesBuilder::Construct()
{
    TraverseEntityRulesElements(m_node);
    return true;
}

bool CTalAttributeEntityRulesBuilder::ConstructRulesForChildren()
{
    TraverseChildrenRulesElements(m_node);
    return true;
}

void CTalAttributeEntityRulesBuilder::TraverseEntityRulesElements(DOMNode* node)
{
    if (!IsElementNamed(node, "Rules"))
        return;
    ForEachChildElement(node, "Create", [&](DOMNode* create) {
        CCreationRules* rules = CMemoryAllocator::CreateCreationRules(m_entity);
        ForEachChildElement(create, [&](NodeName name, DOMNode* child) {
            if (name == "Children")
                CTalAttributeEntityChildrenBuilder(m_path, m_entity, child).Construct();
            else if (name == "LoadCaseTemplates")
                CTalAttributeEntityLoadCaseBuilder(m_path, m_entity, child).Construct();
            else
                ReadCommonElement(child, rules);
        });
    });
}

void CTalAttributeEntityRulesBuilder::TraverseChildrenRulesElements(DOMNode* node)
{
    if (!IsElementNamed(node, "Rules"))
        return;
    ForEachChildElement(node, "Create", [&](DOMNode* create) {
        CCreationRules* rules = CMemoryAllocator::CreateCreationRulesForChildren(m_childrenCreation);
        ForEachChildElement(create, [&](NodeName, DOMNode* child) { ReadCommonElement(child, rules); });
    });
}

void CTalAttributeEntityRulesBuilder::ReadCommonElement(DOMNode* node, CCreationRules* rules)
{
    GuString name;
    GuString value;
    if (IsElementNamed(node, "Option")) {
        CCreationOption* option = CMemoryAllocator::CreateOptionObject(rules);
        GetNameAndValueOfAttribute(node, name, value);
        option->SetOptionName(std::move(name));
        option->SetOptionValue(std::move(value));
        CTalAttributeReaderBuilder(m_path, option, node).Construct();
    } else if (IsElementNamed(node, "Filters")) {
        CTalAttributeEntityFilterBuilder(m_path, node).Construct();
    } else if (IsElementNamed(node, "Rule")) {
        GetNameAndValueOfAttribute(node, name, value);
        rules->SetRule(std::move(name), std::move(value));
    }
}

void CTalAttributeEntityRulesBuilder::GetNameAndValueOfAttribute(DOMNode* node, GuString& name,
                                                                 GuString& value)
{
    ForEachAttribute(node, [&](NodeName attributeName, AttributeValue attributeValue) {
        if (attributeName == "Name")
            name = attributeValue;
        else if (attributeName == "Value")
            value = attributeValue;
    });
}

bool CTalAttributeEntityRulesBuilder::Persist()
{
    DOMNode* create = AppendChildElement(m_node, "Create");
    CCreationRules* rules = m_entity->GetCreationRules();
    WriteOptions(create, rules);
    WriteRules(create, rules);

    const GuString typeName = m_entity->GetTypeName();
    if (typeName == "LoadCase")
        CTalAttributeEntityChildrenBuilder(m_path, m_entity, AppendChildElement(create, "Children"))
            .Persist();
    if (typeName == "Iteration") {
        DOMNode* templates = AppendChildElement(create, "LoadCaseTemplates");
        for (CLoadCaseTemplate& loadCaseTemplate : tal::LoadCaseTemplates(*m_entity))
            CTalAttributeEntityLoadCaseBuilder(m_path, &loadCaseTemplate, templates).Persist();
    }
    WriteUpdateAndDelete(m_node);
    return true;
}

bool CTalAttributeEntityRulesBuilder::PersistForChildren()
{
    DOMNode* create = AppendChildElement(m_node, "Create");
    CCreationRules* rules = m_childrenCreation->GetCreationRules();
    WriteOptions(create, rules);
    AppendChildElement(create, "Filters");
    WriteRules(create, rules);
    AppendChildElement(create, "LoadCaseGroups");
    WriteUpdateAndDelete(m_node);
    return true;
}

void CTalAttributeEntityRulesBuilder::WriteOptions(DOMNode* create, CCreationRules* rules)
{
    if (!rules)
        return;
    for (CCreationOption& option : tal::Options(*rules)) {
        DOMNode* element =
            AppendNameAndValue(create, "Option", option.GetOptionName(), option.GetOptionValue());
        CTalAttributeReaderBuilder(m_path, &option, AppendChildElement(element, "Readers")).Persist();
    }
}
