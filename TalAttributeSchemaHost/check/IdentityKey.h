// What an element is known by when others come and go around it.
#pragma once

#include <string>
#include <vector>

#include "TalAttributeSchemaHost/check/FormatTable.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

/// What tells an element from its siblings: its identifier, else what it refers to, else its name. Empty when
/// it has none of them.
std::string KeyOf(const ElementType& type, const std::vector<XmlAttribute>& attributes);

} // namespace tal
