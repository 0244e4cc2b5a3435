#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeTypeBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/ReadDataGenerator.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/format/YesNo.h"

using namespace xercesc;

CTalAttributeBuilder::CTalAttributeBuilder(GuString path, FileAttribute* attribute, DOMNode* node)
    : m_attribute(attribute), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeBuilder::CTalAttributeBuilder(const CTalAttributeBuilder&) = default;
CTalAttributeBuilder& CTalAttributeBuilder::operator=(const CTalAttributeBuilder&) = default;
CTalAttributeBuilder::~CTalAttributeBuilder() = default;

bool CTalAttributeBuilder::Construct()
{
    TraverseAttributeElements(m_node, m_attribute);
    return true;
}

void CTalAttributeBuilder::TraverseAttributeElements(DOMNode* node, FileAttribute* attribute)
{
    if (!IsElementNamed(node, "Attribute"))
        return;
    ReadAttributes(node, attribute);
    ForEachChildElement(node, "DataGenerator",
                        [&](DOMNode* generator) { ReadDataGenerator(m_path, attribute, generator); });
}

void CTalAttributeBuilder::ReadAttributes(DOMNode* node, FileAttribute* attribute)
{
    ForEachAttribute(node, [&](NodeName name, AttributeValue value) {
        if (name == "ID")
            attribute->SetID(value);
        else if (name == "Label")
            attribute->SetName(value);
        else if (name == "Value")
            attribute->SetValue(value);
        else if (name == "min")
            attribute->SetMinValue(value);
        else if (name == "max")
            attribute->SetMaxValue(value);
        else if (name == "Displayable")
            attribute->SetDisplayable(IsYes(value));
        else if (name == "Editable")
            attribute->SetEditable(IsYes(value));
        else if (name == "DataType")
            attribute->SetDataType(value);
        else if (name == "UseInComparision") // not the name that is written
            attribute->m_useInComparison = IsYesIgnoringCase(value);
        else if (name == "OnChangeCreateVersion")
            attribute->SetMetadataChangeCreateVersionValue(IsYesIgnoringCase(value));
    });
}

bool CTalAttributeBuilder::Persist()
{
    DOMElement* element = AppendChildElement(m_node, "Attribute");
    WriteAttribute(element, m_attribute);
    CDataGenerator* generator = m_attribute->GetDataGenerator();
    if (!generator)
        return false;
    DOMElement* type = AppendElementWithAttribute(AppendChildElement(element, "DataGenerator"), "Type",
                                                  "Name", generator->GetTypeName());
    CTalAttributeTypeBuilder(m_path, generator, type).Persist();
    return true;
}

void CTalAttributeBuilder::WriteAttribute(DOMNode* node, FileAttribute* attribute)
{
    if (!attribute)
        return;
    DOMElement* element = AsElement(node);
    SetElementAttribute(element, "ID", attribute->GetID());
    SetElementAttribute(element, "Label", attribute->GetName());
    SetElementAttribute(element, "Value", attribute->GetValue());
    SetElementAttribute(element, "min", attribute->GetMinValue());
    SetElementAttribute(element, "max", attribute->GetMaxValue());
    SetElementAttribute(element, "Displayable", YesNo(attribute->GetDisplayable()));
    SetElementAttribute(element, "Editable", YesNo(attribute->GetEditable()));
    SetElementAttribute(element, "DataType", attribute->GetDataType());
    SetElementAttribute(element, "UseInComparison", YesNo(attribute->m_useInComparison));
    SetElementAttribute(element, "OnChangeCreateVersion",
                        YesNo(attribute->GetMetaDataChangeCreateVersionValue()));
}
