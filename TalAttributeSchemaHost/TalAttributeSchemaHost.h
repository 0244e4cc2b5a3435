// For hosts: reading, checking and writing schema documents, each saying what happened.
#pragma once

#include "TalAttributeSchemaHost/check/Check.h"
#include "TalAttributeSchemaHost/check/FixText.h"
#include "TalAttributeSchemaHost/file/FixDocument.h"
#include "TalAttributeSchemaHost/file/Load.h"
#include "TalAttributeSchemaHost/file/Save.h"
#include "TalAttributeSchemaHost/file/XmlSession.h"
#include "TalAttributeSchemaHost/findings/FindingExplanations.h"
#include "TalAttributeSchemaHost/text/NearNames.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"
