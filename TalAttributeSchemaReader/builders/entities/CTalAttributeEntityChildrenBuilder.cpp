#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityChildrenBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityRulesBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

using namespace xercesc;

CTalAttributeEntityChildrenBuilder::CTalAttributeEntityChildrenBuilder(GuString path, CustomEntity* entity,
                                                                       DOMNode* node)
    : m_entity(entity), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeEntityChildrenBuilder::CTalAttributeEntityChildrenBuilder(
    const CTalAttributeEntityChildrenBuilder&) = default;
CTalAttributeEntityChildrenBuilder&
CTalAttributeEntityChildrenBuilder::operator=(const CTalAttributeEntityChildrenBuilder&) = default;
CTalAttributeEntityChildrenBuilder::~CTalAttributeEntityChildrenBuilder() = default;

bool CTalAttributeEntityChildrenBuilder::Construct()
{
    TraverseEntityChildrenElements(m_node);
    return true;
}

void CTalAttributeEntityChildrenBuilder::TraverseEntityChildrenElements(DOMNode* node)
{
    if (!IsElementNamed(node, "Children"))
        return;
    ForEachChildElement(node, "Assembly", [&](DOMNode* child) {
        CChildrenCreation* assembly = CMemoryAllocator::CreateChildrenCreation(m_entity);
        ReadAttributes(child, assembly);
        ForEachChildElement(child, "Rules", [&](DOMNode* rules) {
            CTalAttributeEntityRulesBuilder(m_path, assembly, rules).ConstructRulesForChildren();
        });
    });
}

void CTalAttributeEntityChildrenBuilder::ReadAttributes(DOMNode* node, CChildrenCreation* childrenCreation)
{
    ForEachAttribute(node, [&](NodeName name, AttributeValue value) {
        if (name == "AttributeIDRef")
            childrenCreation->SetAssemblyName(value);
        else if (name == "Value")
            childrenCreation->SetAssemblyValue(value);
    });
}

bool CTalAttributeEntityChildrenBuilder::Persist()
{
    for (CChildrenCreation& assembly : tal::Assemblies(*m_entity)) {
        DOMElement* element = AppendChildElement(m_node, "Assembly");
        WriteAttribute(element, &assembly);
        CTalAttributeEntityRulesBuilder(m_path, &assembly, AppendChildElement(element, "Rules"))
            .PersistForChildren();
    }
    return true;
}

void CTalAttributeEntityChildrenBuilder::WriteAttribute(DOMNode* node, CChildrenCreation* childrenCreation)
{
    if (!childrenCreation)
        return;
    DOMElement* element = AsElement(node);
    SetElementAttribute(element, "AttributeIDRef", childrenCreation->GetAssemblyName());
    SetElementAttribute(element, "Value", childrenCreation->GetAssemblyValue());
    SetElementAttribute(element, "Script", GuString());
}
