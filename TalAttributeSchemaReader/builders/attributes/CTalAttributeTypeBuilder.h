// The "Type" element of a data generator.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CDataGenerator.h"

/// Joins a "Type" element and a `CDataGenerator`. Owns neither.
class TALATTRIBUTE_API CTalAttributeTypeBuilder
{
public:
    /// `node` is the "Type" element when reading and when writing.
    CTalAttributeTypeBuilder(GuString path, CDataGenerator* dataGenerator, xercesc::DOMNode* node);
    /// @{
    /// A copy joins what the original joins.
    CTalAttributeTypeBuilder(const CTalAttributeTypeBuilder& other);
    CTalAttributeTypeBuilder& operator=(const CTalAttributeTypeBuilder& other);
    /// @}
    virtual ~CTalAttributeTypeBuilder();

    /// Reads the element. Always returns true.
    bool Construct();
    /// Appends the settings that the generator's kind has to the element. Always returns true.
    bool Persist();

    /// Reads every setting, whatever the kind. Does nothing unless `node` is an element "Type".
    void TraverseAttributeTypeElements(xercesc::DOMNode* node, CDataGenerator* dataGenerator);
    /// Takes the first XML attribute whose name equals `key` ignoring case; without one, `value` stays as it
    /// is.
    void GetAttributeValueForKey(xercesc::DOMNode* node, GuString key, GuString& value);

private:
    CDataGenerator* m_dataGenerator;
    GuString m_path;
    xercesc::DOMNode* m_node;
};
