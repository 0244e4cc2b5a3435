// Text of the model as UTF-8, on every platform.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "TalAttributeSchemaHost/HostExport.h"
#include "TalAttributeSchemaReader/model/genutl/GuString.h"

namespace tal {

/// The text in UTF-8. Half of a surrogate pair becomes U+FFFD; every other character stays what it is.
TALHOST_API std::string ToUtf8(const GuString& text);

/// Appends the character at `position` as `ToUtf8` does, and moves `position` behind it.
void AppendNextAsUtf8(std::string& bytes, const GuChar* text, std::size_t length, std::size_t& position);

/// The text of a model from UTF-8. A byte that begins no character becomes U+FFFD.
TALHOST_API GuString FromUtf8(std::string_view text);

} // namespace tal
