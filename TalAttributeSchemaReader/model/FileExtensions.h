// One file-name extension of a file kind.
#pragma once

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// A file-name extension, kept as the document spells it. Owned by its `CSingleFile`.
class CAESCHEMASCM_API FileExtensions
{
public:
    /// Copies `extension`; the reference only spares the caller a copy.
    void SetExtension(GuString& extension) { m_extension = extension; }
    /// The extension.
    GuString GetExtension() const { return m_extension; }

private:
    GuString m_extension;
};
