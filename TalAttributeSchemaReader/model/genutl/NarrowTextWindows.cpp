// The narrow code page on Windows is the process's ANSI code page.
#include "TalAttributeSchemaReader/model/genutl/NarrowText.h"

#include <windows.h>

#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace {

// One character at a time: the system would put two `?` for a surrogate pair.
void AppendNarrow(std::string& bytes, const GuChar* character, int units)
{
    const bool utf8 = GetACP() == CP_UTF8;
    char buffer[8];
    BOOL replaced = FALSE;
    const int count = WideCharToMultiByte(CP_ACP, utf8 ? 0 : WC_NO_BEST_FIT_CHARS,
                                          reinterpret_cast<const wchar_t*>(character), units, buffer,
                                          sizeof buffer, nullptr, utf8 ? nullptr : &replaced);
    if (count <= 0 || replaced)
        bytes += '?';
    else
        bytes.append(buffer, static_cast<std::size_t>(count));
}

} // namespace

std::string NarrowFromUtf16(const GuChar* text, std::size_t length)
{
    std::string bytes;
    bytes.reserve(length);
    for (std::size_t i = 0; i < length;) {
        const std::size_t begin = i;
        const char32_t codePoint = NextCodePoint(text, length, i);
        if (IsXmlCharacter(codePoint))
            AppendNarrow(bytes, text + begin, static_cast<int>(i - begin));
        else
            bytes += '?';
    }
    return bytes;
}

std::basic_string<GuChar> Utf16FromNarrow(const char* text, std::size_t length)
{
    if (length == 0)
        return {};
    const int narrow = static_cast<int>(length);
    std::basic_string<GuChar> units(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, narrow, nullptr, 0)), GuChar());
    MultiByteToWideChar(CP_ACP, 0, text, narrow, reinterpret_cast<wchar_t*>(units.data()),
                        static_cast<int>(units.size()));
    return units;
}

// Every ANSI code page holds ASCII; anything else takes the long way.
bool NarrowHolds(const GuChar* text, std::size_t length)
{
    for (std::size_t i = 0; i < length; ++i) {
        if (text[i] >= 0x80 || !IsXmlCharacter(text[i]))
            return false;
    }
    return true;
}
