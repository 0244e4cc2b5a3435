// The narrow code page on POSIX is UTF-8, whatever the locale.
#include "TalAttributeSchemaReader/model/genutl/NarrowText.h"

#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace {

// Takes one code point, or one byte that begins none as U+FFFD, so that decoding goes on with the next byte.
char32_t NextUtf8CodePoint(const char* text, std::size_t length, std::size_t& position)
{
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const char32_t lead = byteAt(position++);
    if (lead < 0x80)
        return lead;
    const std::size_t tail = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || position + tail > length)
        return kReplacementCharacter;
    char32_t codePoint = lead & (0x3FU >> tail);
    for (std::size_t i = position; i < position + tail; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80)
            return kReplacementCharacter;
        codePoint = (codePoint << 6) | (byteAt(i) & 0x3F);
    }
    const char32_t smallest = tail == 3 ? 0x10000 : tail == 2 ? 0x800 : 0x80;
    if (codePoint < smallest || codePoint > 0x10FFFF || IsHighSurrogate(codePoint) ||
        IsLowSurrogate(codePoint))
        return kReplacementCharacter;
    position += tail;
    return codePoint;
}

} // namespace

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
