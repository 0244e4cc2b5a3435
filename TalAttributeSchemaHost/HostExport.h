// Which symbols the host library shows to its users.
#pragma once

#include "TalAttributeSchemaReader/model/genutl/GuExport.h"

#ifdef TalAttributeSchemaHost_EXPORTS
#define TALHOST_API GU_SYMBOL_EXPORT
#else
#define TALHOST_API GU_SYMBOL_IMPORT
#endif
