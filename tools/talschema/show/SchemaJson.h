// The model as JSON.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// The whole model, texts in UTF-8. Programs rely on the keys and their order, which `docs/json.md` lists.
nlohmann::ordered_json SchemaToJson(const CDASchema& schema);

/// Indented lines, safe for a terminal.
std::string JsonAsText(const nlohmann::ordered_json& json);
