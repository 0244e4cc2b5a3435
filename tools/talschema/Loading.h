// Reading a document through the library, and saying why when nothing was read.
#pragma once

#include <memory>
#include <string>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// Reads the document `file`. Throws `Trouble` when the library cannot read it; a document without content is
/// fine.
std::unique_ptr<CDASchema> LoadSchema(const std::string& file);
