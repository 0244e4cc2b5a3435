#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeGroupBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/attributes/ReadDataGenerator.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeGroupBuilder::CTalAttributeGroupBuilder(GuString path, CAttributeGroup* attributeGroup,
                                                     DOMNode* node)
    : m_attributeGroup(attributeGroup), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeGroupBuilder::CTalAttributeGroupBuilder(const CTalAttributeGroupBuilder&) = default;
CTalAttributeGroupBuilder& CTalAttributeGroupBuilder::operator=(const CTalAttributeGroupBuilder&) = default;
CTalAttributeGroupBuilder::~CTalAttributeGroupBuilder() = default;

bool CTalAttributeGroupBuilder::Construct()
{
    TraverseAttributeGroupElements(m_node, m_attributeGroup);
    return true;
}

void CTalAttributeGroupBuilder::TraverseAttributeGroupElements(DOMNode* node, CAttributeGroup* attributeGroup)
{
    if (!IsElementNamed(node, "AttributeGroup"))
        return;
    ReadAttributeGroup(node, attributeGroup);
    ForEachChildElement(node, [&](NodeName name, DOMNode* child) {
        if (name == "Attribute")
            ReadAttributes(child, attributeGroup);
        else if (name == "DataGenerator")
            ReadDataGenerator(m_path, attributeGroup, child);
    });
}

void CTalAttributeGroupBuilder::ReadAttributeGroup(DOMNode* node, CAttributeGroup* attributeGroup)
{
    ForEachAttribute(node, [&](NodeName name, AttributeValue value) {
        if (name == "ID")
            attributeGroup->SetAttributeId(value);
        else if (name == "Label")
            attributeGroup->SetAttributeLabel(value);
    });
}

void CTalAttributeGroupBuilder::ReadAttributes(DOMNode* node, CAttributeGroup* attributeGroup)
{
    ForEachAttribute(node, "IDRef",
                     [&](AttributeValue value) { attributeGroup->SetAttributeReference(value); });
}

bool CTalAttributeGroupBuilder::Persist()
{
    DOMElement* element = AppendChildElement(m_node, "AttributeGroup");
    WriteAttribute(element, m_attributeGroup);
    AppendReferences(element, "Attribute", m_attributeGroup->GetAllAttributeReferences());
    return true;
}

void CTalAttributeGroupBuilder::WriteAttribute(DOMNode* node, CAttributeGroup* attributeGroup)
{
    if (!attributeGroup)
        return;
    DOMElement* element = AsElement(node);
    SetElementAttribute(element, "ID", attributeGroup->GetAttributeId());
    SetElementAttribute(element, "Label", attributeGroup->GetAttributeLabel());
}
