// The attribute references of an entity.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CustomEntity.h"

/// Reads all attribute references of an "AttributeSequence" element into a `CustomEntity`, or writes one of
/// them. Owns neither entity nor node.
class TALATTRIBUTE_API CTalAttributeEntityAttributeBuilder
{
public:
    /// For writing `referenceId`: `node` is the "AttributeSequence" element that gets it.
    CTalAttributeEntityAttributeBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node,
                                        GuString referenceId);
    /// For reading: `node` is the "AttributeSequence" element.
    CTalAttributeEntityAttributeBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntityAttributeBuilder(const CTalAttributeEntityAttributeBuilder& other);
    CTalAttributeEntityAttributeBuilder& operator=(const CTalAttributeEntityAttributeBuilder& other);
    /// @}
    virtual ~CTalAttributeEntityAttributeBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends one "Attribute" element. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "AttributeSequence".
    void TraverseAttributeSequenceElements(xercesc::DOMNode* node, CustomEntity* entity);
    /// Reads one "Attribute" child.
    void ReadAttributes(xercesc::DOMNode* node, CustomEntity* entity);
    /// Does nothing when `entity` is null.
    void WriteAttribute(xercesc::DOMNode* element, CustomEntity* entity, GuString referenceId);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
    CustomEntity* m_entity;
    GuString m_referenceId;
};
