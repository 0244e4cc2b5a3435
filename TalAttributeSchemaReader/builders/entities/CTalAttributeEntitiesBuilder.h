// The "Entities" section.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// Joins the "Entities" element and the entity list of a `CDASchema`. Owns neither.
class TALATTRIBUTE_API CTalAttributeEntitiesBuilder
{
public:
    /// `node` is the "Entities" element when reading and when writing.
    CTalAttributeEntitiesBuilder(GuString path, CDASchema* schema, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntitiesBuilder(const CTalAttributeEntitiesBuilder& other);
    CTalAttributeEntitiesBuilder& operator=(const CTalAttributeEntitiesBuilder& other);
    /// @}
    virtual ~CTalAttributeEntitiesBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends one "Entity" element for every entity. Always returns true.
    bool Persist();

    /// Reads into the builder's own schema. Does nothing unless `node` is an element "Entities".
    void TraverseAttributeEntitiesElements(xercesc::DOMNode* node, CDASchema* schema);
    /// Does nothing when `entity` is null.
    void WriteAttribute(xercesc::DOMNode* element, CustomEntity* entity);

private:
    CDASchema* m_schema;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
