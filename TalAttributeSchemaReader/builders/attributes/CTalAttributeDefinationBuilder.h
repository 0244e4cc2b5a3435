// The "AttributeDefinition" section: attribute definitions, file kinds and attribute groups.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// Joins the "AttributeDefinition" element and the three lists of a `CDASchema`. Owns neither.
class TALATTRIBUTE_API CTalAttributeDefinationBuilder
{
public:
    /// `node` is the "AttributeDefinition" element when reading and when writing.
    CTalAttributeDefinationBuilder(GuString path, xercesc::DOMNode* node, CDASchema* schema);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeDefinationBuilder(const CTalAttributeDefinationBuilder& other);
    CTalAttributeDefinationBuilder& operator=(const CTalAttributeDefinationBuilder& other);
    /// @}
    virtual ~CTalAttributeDefinationBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends the three lists to the element. Always returns true.
    bool Persist();

    /// Reads into the builder's own schema. Does nothing unless `node` is an element "AttributeDefinition".
    void TraverseAttributeDefinationElements(xercesc::DOMNode* node, CDASchema* schema);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
    CDASchema* m_schema;
};
