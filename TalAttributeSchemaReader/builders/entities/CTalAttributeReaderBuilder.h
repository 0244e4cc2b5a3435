// The readers of a creation option.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CCreationOption.h"

/// Joins the "Reader" elements of an "Option" element and a `CCreationOption`. Owns neither.
class TALATTRIBUTE_API CTalAttributeReaderBuilder
{
public:
    /// `node` is the "Option" element when reading, its "Readers" element when writing.
    CTalAttributeReaderBuilder(GuString path, CCreationOption* option, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeReaderBuilder(const CTalAttributeReaderBuilder& other);
    CTalAttributeReaderBuilder& operator=(const CTalAttributeReaderBuilder& other);
    /// @}
    virtual ~CTalAttributeReaderBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends one "Reader" element for every reader. Always returns true.
    bool Persist();

    /// Reads the "Reader" elements of every "Readers" child. Does nothing unless `node` is an element.
    void TraverseReaderElements(xercesc::DOMNode* node, CCreationOption* option);
    /// Adds one reader, unless the "Reader" element has no XML attributes at all.
    void ReadAttributes(xercesc::DOMNode* node, CCreationOption* option);
    /// Appends to the builder's own node, which callers pass as `element`, too.
    void WriteAttributes(xercesc::DOMNode* element, CCreationOption* option);

private:
    CCreationOption* m_option;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
