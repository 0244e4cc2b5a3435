// What the author of a document may have meant.
#pragma once

#include <string>

#include "TalAttributeSchemaHost/table/FormatTable.h"
#include "TalAttributeSchemaReader/model/genutl/GuString.h"

namespace tal {

/// A name that may have been meant, and whether letter case is all that differs.
struct Suggestion
{
    std::string name; // empty when no name is near
    bool onlyCase = false;
    bool certain = false; // no other name can have been meant
};

Suggestion SuggestElement(const ElementType& type, const std::string& name);
/// Only what is read is suggested, also for a name that is near to one that is not read.
Suggestion SuggestAttribute(const ElementType& type, const std::string& name);

/// "Yes" or "No" for another word that says so, otherwise empty.
std::string SuggestFlag(const GuString& value);

} // namespace tal
