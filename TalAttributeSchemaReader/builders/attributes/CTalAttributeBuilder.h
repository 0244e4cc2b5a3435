// The "Attribute" element of the "Attributes" list: one attribute definition.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/FileAttribute.h"

/// Joins an "Attribute" element of the definitions and a `FileAttribute`. Owns neither.
class TALATTRIBUTE_API CTalAttributeBuilder
{
public:
    /// `node` is the "Attribute" element when reading, the "Attributes" element when writing.
    CTalAttributeBuilder(GuString path, FileAttribute* attribute, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeBuilder(const CTalAttributeBuilder& other);
    CTalAttributeBuilder& operator=(const CTalAttributeBuilder& other);
    /// @}
    virtual ~CTalAttributeBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends an "Attribute" element. Returns true when the attribute has a data generator; the element is
    /// complete in both cases.
    bool Persist();

    /// Does nothing unless `node` is an element "Attribute".
    void TraverseAttributeElements(xercesc::DOMNode* node, FileAttribute* attribute);
    /// Takes the XML attributes of an "Attribute" element.
    void ReadAttributes(xercesc::DOMNode* node, FileAttribute* attribute);
    /// Does nothing when `attribute` is null.
    void WriteAttribute(xercesc::DOMNode* element, FileAttribute* attribute);

private:
    FileAttribute* m_attribute;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
