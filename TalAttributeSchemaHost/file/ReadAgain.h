// The last look at a new document before it takes the place of the old one.
#pragma once

#include <string>

#include "TalAttributeSchemaHost/file/ReplacementFile.h"

namespace tal {

/// Parses a new file that a serializer wrote, so one without a document type. Returns what keeps it from
/// being read, as UTF-8, or nothing. The XML library must be initialised. Throws what `file` throws, and
/// `xercesc::OutOfMemoryException`.
std::string ReadAgain(const ReplacementFile& file);

} // namespace tal
