// Yes/no flags in the document.
#pragma once

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// True for "Yes" with exactly these letters.
inline bool IsYes(const GuString& value)
{
    return value.Compare("Yes") == 0;
}

/// True for "Yes" in any mix of capital and small letters.
inline bool IsYesIgnoringCase(const GuString& value)
{
    return value.CompareNoCase("Yes") == 0;
}

/// How a flag is written.
inline const char* YesNo(bool flag)
{
    return flag ? "Yes" : "No";
}
