// For hosts that join DOM elements and model objects themselves: the exported builder classes.
//
// Nodes and model objects must not be null unless an operation says otherwise. Values are read whole and
// untrimmed; names that are not known are skipped.
#pragma once

#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeDefinationBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeFileBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeFileExtensionBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeGroupBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeSequenceBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeTypeBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntitiesBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityAttributeBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityChildrenBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityFileBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityFilterBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityLoadCaseBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityRulesBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntitySubFilterBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeReaderBuilder.h"
