// The array of strings that the model's accessors return.
#pragma once

#include "TalAttributeSchemaReader/model/genutl/GuString.h"
#include "TalAttributeSchemaReader/model/genutl/GuTemplateArray.h"

using GuStringArray = GuTemplateArray<GuString, GuCRTAllocator>;
