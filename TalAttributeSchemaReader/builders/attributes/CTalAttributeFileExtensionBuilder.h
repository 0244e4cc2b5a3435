// The "FileExtension" element of a file kind.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/FileExtensions.h"

/// Joins a "FileExtension" element and a `FileExtensions`. Owns neither.
class TALATTRIBUTE_API CTalAttributeFileExtensionBuilder
{
public:
    /// `node` is the "FileExtension" element when reading, the "File" element when writing.
    CTalAttributeFileExtensionBuilder(GuString path, FileExtensions* extension, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeFileExtensionBuilder(const CTalAttributeFileExtensionBuilder& other);
    CTalAttributeFileExtensionBuilder& operator=(const CTalAttributeFileExtensionBuilder& other);
    /// @}
    virtual ~CTalAttributeFileExtensionBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends a "FileExtension" element. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "FileExtension".
    void TraverseAttributeFileExtensionElements(xercesc::DOMNode* node, FileExtensions* extension);
    /// Takes the XML attributes of a "FileExtension" element.
    void ReadAttributes(xercesc::DOMNode* node, FileExtensions* extension);
    /// Does nothing when `extension` is null.
    void WriteAttribute(xercesc::DOMNode* element, FileExtensions* extension);

private:
    FileExtensions* m_extension;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
