#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityFilterBuilder.h"

#include <utility>

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntitySubFilterBuilder.h"
#include "TalAttributeSchemaReader/dom/DomHelpers.h"
#include "TalAttributeSchemaReader/dom/ReadingConventions.h"

using namespace xercesc;

CTalAttributeEntityFilterBuilder::CTalAttributeEntityFilterBuilder(GuString path, DOMNode* node)
    : m_path(std::move(path)), m_node(node)
{
}

CTalAttributeEntityFilterBuilder::CTalAttributeEntityFilterBuilder(const CTalAttributeEntityFilterBuilder&) =
    default;
CTalAttributeEntityFilterBuilder&
CTalAttributeEntityFilterBuilder::operator=(const CTalAttributeEntityFilterBuilder&) = default;
CTalAttributeEntityFilterBuilder::~CTalAttributeEntityFilterBuilder() = default;

bool CTalAttributeEntityFilterBuilder::Construct()
{
    TraverseEntityFilterElements(m_node);
    return true;
}

void CTalAttributeEntityFilterBuilder::TraverseEntityFilterElements(DOMNode* node)
{
    if (!IsElementNamed(node, "Filters"))
        return;
    ForEachChildElement(node, "Filter", [&](DOMNode* filter) {
        ReadAttributes(filter);
        ForEachChildElement(filter, [&](NodeName name, DOMNode* child) {
            if (name == "criteria")
                ReadCriteriaAttribute(child);
            else if (name == "SubFilter")
                CTalAttributeEntitySubFilterBuilder(m_path, child).Construct();
        });
    });
}

void CTalAttributeEntityFilterBuilder::ReadAttributes(DOMNode* node)
{
    ForEachAttribute(node, [](NodeName, AttributeValue) {});
}

void CTalAttributeEntityFilterBuilder::ReadCriteriaAttribute(DOMNode* node)
{
    ForEachAttribute(node, [](NodeName, AttributeValue) {});
}

bool CTalAttributeEntityFilterBuilder::Persist()
{
    DOMNode* filter = AppendChildElement(m_node, "Filter");
    AppendChildElement(filter, "criteria");
    CTalAttributeEntitySubFilterBuilder(m_path, AppendChildElement(filter, "SubFilter")).Persist();
    return true;
}

void CTalAttributeEntityFilterBuilder::WriteAttributes(DOMNode*) {}

void CTalAttributeEntityFilterBuilder::WriteCriteriaAttribute(DOMNode*) {}
