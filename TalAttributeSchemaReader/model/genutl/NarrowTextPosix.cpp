// The narrow code page on POSIX is UTF-8, whatever the locale.
#include "TalAttributeSchemaReader/model/genutl/NarrowText.h"

#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

std::string NarrowFromUtf16(const GuChar* text, std::size_t length)
{
    std::string bytes;
    bytes.reserve(length);
    for (std::size_t i = 0; i < length;) {
        const char32_t codePoint = NextCodePoint(text, length, i);
        AppendUtf8(bytes, IsXmlCharacter(codePoint) ? codePoint : U'?');
    }
    return bytes;
}

std::basic_string<GuChar> Utf16FromNarrow(const char* text, std::size_t length)
{
    std::basic_string<GuChar> units;
    units.reserve(length);
    for (std::size_t i = 0; i < length;)
        AppendCodePoint(units, NextUtf8CodePoint(text, length, i));
    return units;
}

bool NarrowHolds(const GuChar* text, std::size_t length)
{
    for (std::size_t i = 0; i < length;) {
        if (text[i] >= 0x20 && text[i] < 0xD800)
            ++i;
        else if (!IsXmlCharacter(NextCodePoint(text, length, i)))
            return false;
    }
    return true;
}
