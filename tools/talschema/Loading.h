// Reading a document for a command, or ending the command with the reasons.
#pragma once

#include <string>

#include "TalAttributeSchemaHost/file/Load.h"
#include "tools/talschema/input/Input.h"

/// Reads a document. Throws `Trouble` when nothing was read, and warns about what the document refers to
/// outside of itself.
tal::LoadResult Load(const Input& input, const tal::LoadOptions& options);
