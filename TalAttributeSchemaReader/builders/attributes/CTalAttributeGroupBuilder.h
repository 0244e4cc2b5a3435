// The "AttributeGroup" element.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CAttributeGroup.h"

/// Joins an "AttributeGroup" element and a `CAttributeGroup`. Owns neither.
class TALATTRIBUTE_API CTalAttributeGroupBuilder
{
public:
    /// `node` is the "AttributeGroup" element when reading, the "AttributeGroups" element when writing.
    CTalAttributeGroupBuilder(GuString path, CAttributeGroup* attributeGroup, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeGroupBuilder(const CTalAttributeGroupBuilder& other);
    CTalAttributeGroupBuilder& operator=(const CTalAttributeGroupBuilder& other);
    /// @}
    virtual ~CTalAttributeGroupBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends an "AttributeGroup" element, without the group's data generator. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "AttributeGroup".
    void TraverseAttributeGroupElements(xercesc::DOMNode* node, CAttributeGroup* attributeGroup);
    /// Takes the XML attributes of an "AttributeGroup" element.
    void ReadAttributeGroup(xercesc::DOMNode* node, CAttributeGroup* attributeGroup);
    /// Reads one "Attribute" child.
    void ReadAttributes(xercesc::DOMNode* node, CAttributeGroup* attributeGroup);
    /// Does nothing when `attributeGroup` is null.
    void WriteAttribute(xercesc::DOMNode* element, CAttributeGroup* attributeGroup);

private:
    CAttributeGroup* m_attributeGroup;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
