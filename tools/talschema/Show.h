// The view of `talschema show` for people.
#pragma once

#include <string>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// The whole model for people: counts first, then one section after the other. Empty values are left out
/// where their absence says the same.
std::string SchemaAsTree(const CDASchema& schema, const std::string& title, bool coloured);
