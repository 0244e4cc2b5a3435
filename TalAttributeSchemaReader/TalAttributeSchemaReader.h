// For hosts: the exported functions and the model.
#pragma once

#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"
#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"
#include "TalAttributeSchemaReader/module/Exports.h"
