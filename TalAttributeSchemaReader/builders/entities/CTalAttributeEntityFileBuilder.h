// The file references of an entity.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CustomEntity.h"

/// Reads all file references of a "FileSequence" element into a `CustomEntity`, or writes one of them. Owns
/// neither entity nor node.
class TALATTRIBUTE_API CTalAttributeEntityFileBuilder
{
public:
    /// For writing `referenceId`: `node` is the "FileSequence" element that gets it.
    CTalAttributeEntityFileBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node,
                                   GuString referenceId);
    /// For reading: `node` is the "FileSequence" element.
    CTalAttributeEntityFileBuilder(GuString path, CustomEntity* entity, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeEntityFileBuilder(const CTalAttributeEntityFileBuilder& other);
    CTalAttributeEntityFileBuilder& operator=(const CTalAttributeEntityFileBuilder& other);
    /// @}
    virtual ~CTalAttributeEntityFileBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends one "File" element. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "FileSequence".
    void TraverseFileSequenceElements(xercesc::DOMNode* node, CustomEntity* entity);
    /// Reads one "File" child.
    void ReadFileSequence(xercesc::DOMNode* node, CustomEntity* entity);
    /// Does nothing when `entity` is null.
    void WriteAttribute(xercesc::DOMNode* element, CustomEntity* entity, GuString referenceId);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
    CustomEntity* m_entity;
    GuString m_referenceId;
};
