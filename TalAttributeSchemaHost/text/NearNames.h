// Guessing which name somebody meant.
#pragma once

#include <string>
#include <vector>

#include "TalAttributeSchemaHost/HostExport.h"

namespace tal {

/// True when nothing but letter case differs; letters are those of ASCII.
TALHOST_API bool EqualIgnoringCase(const std::string& left, const std::string& right);

/// The first known name that is nearest to `name`: at most two edits away, letter case left aside. Empty when
/// none is near.
TALHOST_API std::string NearestName(const std::string& name, const std::vector<std::string>& known);

/// The known name that `name` was meant to be when there is no doubt: the only one that differs in letter
/// case alone, or else the only one that is near, as `NearestName` has it, when most letters are there
/// already. Otherwise empty.
TALHOST_API std::string CertainName(const std::string& name, const std::vector<std::string>& known);

} // namespace tal
