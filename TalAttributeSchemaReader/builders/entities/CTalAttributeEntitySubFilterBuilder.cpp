#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntitySubFilterBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeEntitySubFilterBuilder::CTalAttributeEntitySubFilterBuilder(GuString path, DOMNode* node)
    : m_path(std::move(path)), m_node(node)
{
}

CTalAttributeEntitySubFilterBuilder::CTalAttributeEntitySubFilterBuilder(
    const CTalAttributeEntitySubFilterBuilder&) = default;
CTalAttributeEntitySubFilterBuilder&
CTalAttributeEntitySubFilterBuilder::operator=(const CTalAttributeEntitySubFilterBuilder&) = default;
CTalAttributeEntitySubFilterBuilder::~CTalAttributeEntitySubFilterBuilder() = default;

bool CTalAttributeEntitySubFilterBuilder::Construct()
{
    TraverseEntitySubFilterElements(m_node);
    return true;
}

void CTalAttributeEntitySubFilterBuilder::TraverseEntitySubFilterElements(DOMNode* node)
{
    if (!IsElementNamed(node, "SubFilter"))
        return;
    ReadAttributes(node);
    ForEachChildElement(node, "criteria", [&](DOMNode* criteria) { ReadCriteriaAttribute(criteria); });
}

void CTalAttributeEntitySubFilterBuilder::ReadAttributes(DOMNode* node)
{
    ForEachAttribute(node, [](NodeName, AttributeValue) {});
}

void CTalAttributeEntitySubFilterBuilder::ReadCriteriaAttribute(DOMNode* node)
{
    ForEachAttribute(node, [](NodeName, AttributeValue) {});
}

bool CTalAttributeEntitySubFilterBuilder::Persist()
{
    AppendChildElement(m_node, "criteria");
    return true;
}

void CTalAttributeEntitySubFilterBuilder::WriteAttributes(DOMNode*) {}

void CTalAttributeEntitySubFilterBuilder::WriteCriteriaAttributes(DOMNode*) {}
