// Text in and out of the narrow code page: UTF-8 on POSIX, the ANSI code page on Windows.
#pragma once

#include <cstddef>
#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuChar.h"

/// One `?` stands for every character that the code page cannot hold, every unpaired surrogate and every code
/// point that no XML 1.0 document can carry.
std::string NarrowFromUtf16(const GuChar* text, std::size_t length);

/// Bytes that are no text become U+FFFD in UTF-8 and what the system makes of them in another code page.
std::basic_string<GuChar> Utf16FromNarrow(const char* text, std::size_t length);

/// True when the way through the code page and back would give the same text. A false answer promises
/// nothing.
bool NarrowHolds(const GuChar* text, std::size_t length);
