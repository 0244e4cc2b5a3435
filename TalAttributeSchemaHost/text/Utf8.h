// Text of the model as UTF-8, on every platform.
#pragma once

#include <string>
#include <string_view>

#include "TalAttributeSchemaHost/HostExport.h"
#include "TalAttributeSchemaReader/model/genutl/GuString.h"

namespace tal {

/// The text in UTF-8. Half of a surrogate pair becomes U+FFFD; every other character stays what it is.
TALHOST_API std::string ToUtf8(const GuString& text);

/// The text of a model from UTF-8. A byte that begins no character becomes U+FFFD.
TALHOST_API GuString FromUtf8(std::string_view text);

} // namespace tal
