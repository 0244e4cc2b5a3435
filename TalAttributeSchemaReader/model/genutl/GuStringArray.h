// The array of strings that the model's accessors return.
#pragma once

#include "TalAttributeSchemaReader/model/genutl/GuString.h"
#include "TalAttributeSchemaReader/model/genutl/GuTemplateArray.h"

/// Strings in the order in which they were added.
using GuStringArray = GuTemplateArray<GuString, GuCRTAllocator>;
