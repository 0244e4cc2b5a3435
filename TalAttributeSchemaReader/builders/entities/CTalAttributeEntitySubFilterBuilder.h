// The "SubFilter" element, which the model has no place for.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// Walks a "SubFilter" element and stores nothing; writes an empty "criteria". Owns no node.
class TALATTRIBUTE_API CTalAttributeEntitySubFilterBuilder
{
public:
    /// `node` is the "SubFilter" element when reading and when writing.
    CTalAttributeEntitySubFilterBuilder(GuString path, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntitySubFilterBuilder(const CTalAttributeEntitySubFilterBuilder& other);
    CTalAttributeEntitySubFilterBuilder& operator=(const CTalAttributeEntitySubFilterBuilder& other);
    /// @}
    virtual ~CTalAttributeEntitySubFilterBuilder();

    /// Walks the element. Always returns true.
    bool Construct();
    /// Appends an empty "criteria" to the node. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "SubFilter".
    void TraverseEntitySubFilterElements(xercesc::DOMNode* node);
    /// Visits the XML attributes of a "SubFilter" and interprets none.
    void ReadAttributes(xercesc::DOMNode* node);
    /// Visits the XML attributes of a "criteria" and interprets none.
    void ReadCriteriaAttribute(xercesc::DOMNode* node);
    /// Does nothing.
    void WriteAttributes(xercesc::DOMNode* element);
    /// Does nothing.
    void WriteCriteriaAttributes(xercesc::DOMNode* element);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
};
