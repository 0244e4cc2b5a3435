// The "Children" element: the assemblies of an entity.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CustomEntity.h"

/// Joins a "Children" element and the assemblies of a `CustomEntity`. Owns neither.
class TALATTRIBUTE_API CTalAttributeEntityChildrenBuilder
{
public:
    /// `node` is the "Children" element when reading and when writing.
    CTalAttributeEntityChildrenBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntityChildrenBuilder(const CTalAttributeEntityChildrenBuilder& other);
    CTalAttributeEntityChildrenBuilder& operator=(const CTalAttributeEntityChildrenBuilder& other);
    /// @}
    virtual ~CTalAttributeEntityChildrenBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends one "Assembly" element for every assembly. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "Children".
    void TraverseEntityChildrenElements(xercesc::DOMNode* node);
    /// Reads one "Assembly" element.
    void ReadAttributes(xercesc::DOMNode* node, CChildrenCreation* childrenCreation);
    /// Does nothing when `childrenCreation` is null. "Script" is always written empty.
    void WriteAttribute(xercesc::DOMNode* element, CChildrenCreation* childrenCreation);

private:
    CustomEntity* m_entity;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
