// Names of files that a person gives.
#pragma once

#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// The path by which library and parser find `file`: absolute, so that it is never taken for a URI. Throws
/// `Trouble` when the name is not UTF-8, because the library could not find it then.
GuString AbsolutePath(const std::string& file);

/// Throws `Trouble` when `file` cannot be read as a document.
void ExpectReadable(const std::string& file);

/// Throws `Trouble` when `file` is a directory, a pipe or a device.
void RefuseSpecialFile(const std::string& file);
