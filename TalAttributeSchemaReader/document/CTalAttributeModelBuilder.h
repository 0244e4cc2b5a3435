// The document as a whole: reads a file into a schema, writes a schema into a file.
#pragma once

#include <xercesc/dom/DOMNode.hpp>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// Serves one read or one write. It never deletes the schema.
class CTalAttributeModelBuilder
{
public:
    /// For reading: makes a new, empty schema, which belongs to the caller. The last argument is ignored.
    CTalAttributeModelBuilder(GuString path, void* reserved);
    /// For writing: `schema` stays the caller's and may be null. The last argument is ignored.
    CTalAttributeModelBuilder(GuString path, CDASchema* schema, void* reserved);
    virtual ~CTalAttributeModelBuilder();

    CDASchema* GetSchema() const { return m_schema; }

    /// Parses the file into the schema. False when the file could not be read or the parser reported
    /// anything, a warning included; the schema then stays empty. An exception of the walk over a parsed
    /// document passes through.
    bool ReadDocument();
    /// Hands the sections below `root` to their builders. Does nothing unless `root` is an element "Model".
    void TraverseModelElements(xercesc::DOMNode* root);

    /// Writes the schema, always the whole file. False when the XML library could not be set up; true
    /// otherwise, also when the file could not be written. The file is opened only when the document stands
    /// in memory.
    bool WriteDocument();
    /// Appends the three sections to `root`; nothing for a null schema.
    void WriteModelElements(xercesc::DOMNode* root);

private:
    CDASchema* m_schema;
    GuString m_path;
};
