// Code points in and out of UTF-16, whatever the character type that holds the units, and of UTF-8.
#pragma once

#include <cstddef>
#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuChar.h"

constexpr char32_t kReplacementCharacter = 0xFFFD;

constexpr bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// True for the code points that an XML 1.0 document can carry. Surrogates are none.
constexpr bool IsXmlCharacter(char32_t codePoint)
{
    return (codePoint >= 0x20 && codePoint <= 0xD7FF) || codePoint == '\t' || codePoint == '\n' ||
           codePoint == '\r' || (codePoint >= 0xE000 && codePoint <= 0xFFFD) ||
           (codePoint >= 0x10000 && codePoint <= 0x10FFFF);
}

/// Takes the code point at `position` and moves `position` behind it. An unpaired surrogate comes out as
/// itself.
template <class Unit>
char32_t NextCodePoint(const Unit* text, std::size_t length, std::size_t& position)
{
    const auto first = static_cast<char32_t>(text[position++]);
    if (!IsHighSurrogate(first) || position == length)
        return first;
    const auto second = static_cast<char32_t>(text[position]);
    if (!IsLowSurrogate(second))
        return first;
    ++position;
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

/// Appends one code point: one unit, or a surrogate pair. Beyond U+10FFFF it becomes U+FFFD.
template <class Unit>
void AppendCodePoint(std::basic_string<Unit>& text, char32_t codePoint)
{
    if (codePoint > 0x10FFFF)
        codePoint = kReplacementCharacter;
    if (codePoint >= 0x10000) {
        codePoint -= 0x10000;
        text += static_cast<Unit>(0xD800 + (codePoint >> 10));
        text += static_cast<Unit>(0xDC00 + (codePoint & 0x3FF));
    } else {
        text += static_cast<Unit>(codePoint);
    }
}

/// Appends one code point, which must not be a surrogate, as UTF-8.
inline void AppendUtf8(std::string& bytes, char32_t codePoint)
{
    const auto append = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
    const auto appendTail = [&](int shift) { append(0x80 | ((codePoint >> shift) & 0x3F)); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | (codePoint >> 6));
        appendTail(0);
    } else if (codePoint < 0x10000) {
        append(0xE0 | (codePoint >> 12));
        appendTail(6);
        appendTail(0);
    } else {
        append(0xF0 | (codePoint >> 18));
        appendTail(12);
        appendTail(6);
        appendTail(0);
    }
}

/// Takes the code point at `position` of UTF-8 text and moves `position` behind it. A byte that begins none
/// counts as U+FFFD, so that decoding goes on with the next byte.
inline char32_t NextUtf8CodePoint(const char* text, std::size_t length, std::size_t& position)
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

/// UTF-16 from 16-bit units, which are taken unchanged, or from 32-bit code points.
template <class Wide>
std::basic_string<GuChar> Utf16FromWide(const Wide* text, std::size_t length)
{
    static_assert(sizeof(Wide) == 2 || sizeof(Wide) == 4,
                  "a wide character is a UTF-16 unit or a code point");
    if constexpr (sizeof(Wide) == 2) {
        return {text, text + length};
    } else {
        std::basic_string<GuChar> result;
        result.reserve(length);
        for (std::size_t i = 0; i < length; ++i)
            AppendCodePoint(result, static_cast<char32_t>(text[i]));
        return result;
    }
}
