// The content of an "Entity" element.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CustomEntity.h"

/// Joins an "Entity" element and a `CustomEntity`. Owns neither.
class TALATTRIBUTE_API CTalAttributeEntityBuilder
{
public:
    /// `node` is the "Entity" element when reading and when writing.
    CTalAttributeEntityBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntityBuilder(const CTalAttributeEntityBuilder& other);
    CTalAttributeEntityBuilder& operator=(const CTalAttributeEntityBuilder& other);
    /// @}
    virtual ~CTalAttributeEntityBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends "Definition" and "Rules" to the element. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "Entity".
    void TraverseAttributeEntityElements(xercesc::DOMNode* node, CustomEntity* entity);
    /// Takes the XML attributes of an "Entity" element.
    void ReadAttributes(xercesc::DOMNode* node, CustomEntity* entity);

private:
    CustomEntity* m_entity;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
