// The sentences about a document as a whole.
#pragma once

#include <string>

#include "TalAttributeSchemaHost/findings/Sentence.h"

namespace tal::message {

Sentence FileFailed(const std::string& reason);
Sentence UnknownCodePage(unsigned codePage);
Sentence NothingIsRead(const std::string& report);
Sentence BadVersion(const std::string& version);
Sentence BadDocumentType(const std::string& name);
/// "0xE4".
std::string HexNumber(unsigned char byte);
Sentence BadByte(const std::string& number, const std::string& encoding);
Sentence NeedsOutside(const std::string& target);
Sentence ExpandsTooFar();
Sentence WrongRoot(const std::string& name);

/// `entity` is empty for the document type.
Sentence RefersOutside(const std::string& entity, const std::string& target);

} // namespace tal::message
