// The "Storage" section.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CStorage.h"

/// Joins the "Storage" element and the `CStorage` of a schema. Owns neither. Not exported.
class CTalAttributeStorageBuilder
{
public:
    /// `node` is the "Storage" element when reading and when writing.
    CTalAttributeStorageBuilder(GuString path, CStorage* storage, xercesc::DOMNode* node);

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends the three settings to the element; nothing for a null storage object. Always returns true.
    bool Persist();

    /// Does nothing unless `node` is an element "Storage".
    void TraverseStorageElements(xercesc::DOMNode* node, CStorage* storage);

private:
    GuString m_path;
    xercesc::DOMNode* m_node;
    CStorage* m_storage;
};
