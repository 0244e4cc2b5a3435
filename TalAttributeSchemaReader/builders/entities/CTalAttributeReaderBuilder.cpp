#include "TalAttributeSchemaReader/builders/entities/CTalAttributeReaderBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"

using namespace xercesc;

CTalAttributeReaderBuilder::CTalAttributeReaderBuilder(GuString path, CCreationOption* option, DOMNode* node)
    : m_option(option), m_path(std::move(path)), m_node(node)
{
}

CTalAttributeReaderBuilder::CTalAttributeReaderBuilder(const CTalAttributeReaderBuilder&) = default;
CTalAttributeReaderBuilder&
CTalAttributeReaderBuilder::operator=(const CTalAttributeReaderBuilder&) = default;
CTalAttributeReaderBuilder::~CTalAttributeReaderBuilder() = default;

bool CTalAttributeReaderBuilder::Construct()
{
    TraverseReaderElements(m_node, m_option);
    return true;
}

void CTalAttributeReaderBuilder::TraverseReaderElements(DOMNode* node, CCreationOption* option)
{
    if (!AsElement(node))
        return;
    ForEachChildElement(node, "Readers", [&](DOMNode* readers) {
        ForEachChildElement(readers, "Reader", [&](DOMNode* reader) { ReadAttributes(reader, option); });
    });
}

void CTalAttributeReaderBuilder::ReadAttributes(DOMNode* node, CCreationOption* option)
{
    if (!node->hasAttributes())
        return;
    GuString name;
    GuString script;
    GuString value;
    ForEachAttribute(node, [&](NodeName attributeName, AttributeValue attributeValue) {
        if (attributeName == "Name")
            name = attributeValue;
        else if (attributeName == "Script")
            script = attributeValue;
        else if (attributeName == "Value")
            value = attributeValue;
    });
    option->SetReader(std::move(name), std::move(script), std::move(value));
}

bool CTalAttributeReaderBuilder::Persist()
{
    WriteAttributes(m_node, m_option);
    return true;
}

void CTalAttributeReaderBuilder::WriteAttributes(DOMNode*, CCreationOption* option)
{
    for (const auto& [name, script, value] : tal::Readers(*option)) {
        DOMElement* element = AppendElementWithAttribute(m_node, "Reader", "Name", name);
        SetElementAttribute(element, "Script", script);
        SetElementAttribute(element, "Value", value);
    }
}
