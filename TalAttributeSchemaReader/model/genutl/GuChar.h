// The 16-bit unit of all text.
#pragma once

#ifdef _WIN32
using GuChar = wchar_t;
#else
using GuChar = char16_t;
#endif

static_assert(sizeof(GuChar) == 2, "text is UTF-16 on every platform");
