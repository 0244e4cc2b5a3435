// Text of the model as bytes for people and programs.
#include "tools/talschema/Text.h"

#include <cstdio>

#include <wchar.h>

#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace {

bool NeedsEscape(GuChar unit)
{
    const bool control = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F);
    const bool separator = unit == 0x2028 || unit == 0x2029;
    const bool bidirectional = unit == 0x061C || unit == 0x200E || unit == 0x200F ||
                               (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
    return control || separator || bidirectional;
}

std::string Escape(GuChar unit)
{
    switch (unit) {
    case '\t':
        return "\\t";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    default:
        char escape[sizeof "\\uFFFF"];
        std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(unit) & 0xFFFFU);
        return escape;
    }
}

} // namespace

std::string ToUtf8(const GuString& text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.GetLength();) {
        const char32_t codePoint = NextCodePoint(text.c_str(), text.GetLength(), i);
        const bool unpaired = IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint);
        AppendUtf8(bytes, unpaired ? kReplacementCharacter : codePoint);
    }
    return bytes;
}

std::string Printable(const GuString& text)
{
    std::basic_string<GuChar> printable;
    for (const GuChar* unit = text.c_str(); *unit; ++unit) {
        if (NeedsEscape(*unit)) {
            for (const char character : Escape(*unit))
                printable += static_cast<GuChar>(character);
        } else {
            printable += *unit;
        }
    }
    return ToUtf8(printable.c_str());
}

std::size_t DisplayWidth(const std::string& text)
{
    const GuString units(text.c_str());
    std::size_t width = 0;
    for (std::size_t i = 0; i < units.GetLength();) {
        const int columns = wcwidth(static_cast<wchar_t>(NextCodePoint(units.c_str(), units.GetLength(), i)));
        // Characters that the C library does not know yet are counted as one column.
        width += columns < 0 ? 1 : static_cast<std::size_t>(columns);
    }
    return width;
}
