// The attribute references of a file kind.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CSingleFile.h"

/// Reads one "Attribute" reference into a `CSingleFile`, or writes all of them. Owns neither file nor node.
class TALATTRIBUTE_API CTalAttributeSequenceBuilder
{
public:
    /// `node` is one "Attribute" element when reading, the "AttributeSequence" element when writing.
    CTalAttributeSequenceBuilder(GuString path, xercesc::DOMNode* node, CSingleFile* file);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeSequenceBuilder(const CTalAttributeSequenceBuilder& other);
    CTalAttributeSequenceBuilder& operator=(const CTalAttributeSequenceBuilder& other);
    /// @}
    virtual ~CTalAttributeSequenceBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends one "Attribute" element for every reference that is not empty. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "Attribute".
    void TraverseAttributeFileSequenceElements(xercesc::DOMNode* node);
    /// Skips an empty reference.
    void ReadAttributes(xercesc::DOMNode* node);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
    CSingleFile* m_file;
};
