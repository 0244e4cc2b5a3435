// The "File" element of the "Files" list: one file kind.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CSingleFile.h"

/// Joins a "File" element of the definitions and a `CSingleFile`. Owns neither.
class TALATTRIBUTE_API CTalAttributeFileBuilder
{
public:
    /// `node` is the "File" element when reading, the "Files" element when writing.
    CTalAttributeFileBuilder(GuString path, CSingleFile* file, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeFileBuilder(const CTalAttributeFileBuilder& other);
    CTalAttributeFileBuilder& operator=(const CTalAttributeFileBuilder& other);
    /// @}
    virtual ~CTalAttributeFileBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends a "File" element. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "File".
    void TraverseAttributeFilesElements(xercesc::DOMNode* node, CSingleFile* file);
    /// Takes the XML attributes of a "File" element.
    void ReadAttributes(xercesc::DOMNode* node, CSingleFile* file);
    /// Does nothing when `file` is null.
    void WriteAttribute(xercesc::DOMNode* element, CSingleFile* file);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
    CSingleFile* m_file;
};
