// The text of attribute-schema.xsd, as it was when the tool was built.
#pragma once

#include <cstddef>

extern const unsigned char kXsdText[];
extern const std::size_t kXsdSize;
