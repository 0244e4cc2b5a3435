// The "Filters" element, which the model has no place for.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// Walks a "Filters" element and stores nothing; writes a skeleton of empty elements. Owns no node.
class TALATTRIBUTE_API CTalAttributeEntityFilterBuilder
{
public:
    /// `node` is the "Filters" element when reading and when writing.
    CTalAttributeEntityFilterBuilder(GuString path, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntityFilterBuilder(const CTalAttributeEntityFilterBuilder& other);
    CTalAttributeEntityFilterBuilder& operator=(const CTalAttributeEntityFilterBuilder& other);
    /// @}
    virtual ~CTalAttributeEntityFilterBuilder();

    /// Walks the element. Always returns true.
    bool Construct();
    /// Appends a "Filter" with an empty "criteria" and a "SubFilter" to the node. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "Filters".
    void TraverseEntityFilterElements(xercesc::DOMNode* node);
    /// Visits the XML attributes of a "Filter" and interprets none.
    void ReadAttributes(xercesc::DOMNode* node);
    /// Visits the XML attributes of a "criteria" and interprets none.
    void ReadCriteriaAttribute(xercesc::DOMNode* node);
    /// Does nothing.
    void WriteAttributes(xercesc::DOMNode* element);
    /// Does nothing.
    void WriteCriteriaAttribute(xercesc::DOMNode* element);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
};
