#include "TalAttributeSchemaReader/model/CDASchema.h"

CDASchema::CDASchema() = default;

CDASchema::~CDASchema() = default;
