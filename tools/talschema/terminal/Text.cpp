#include "tools/talschema/terminal/Text.h"

#include <cstdio>

#include <utf8proc.h>

#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace {

bool NeedsEscape(char32_t unit)
{
    const bool control = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F);
    const bool separator = unit == 0x2028 || unit == 0x2029;
    const bool bidirectional = unit == 0x061C || unit == 0x200E || unit == 0x200F ||
                               (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
    return control || separator || bidirectional;
}

std::string Escape(char32_t unit)
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

std::string Printable(std::string_view text)
{
    std::string printable;
    printable.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const char32_t codePoint = NextUtf8CodePoint(text.data(), text.size(), i);
        if (NeedsEscape(codePoint))
            printable += Escape(codePoint);
        else
            AppendUtf8(printable, codePoint);
    }
    return printable;
}

std::size_t DisplayWidth(std::string_view text)
{
    std::size_t width = 0;
    for (std::size_t i = 0; i < text.size();) {
        const auto codePoint = static_cast<utf8proc_int32_t>(NextUtf8CodePoint(text.data(), text.size(), i));
        // Characters that the library does not know yet are counted as one column.
        const bool known = utf8proc_category(codePoint) != UTF8PROC_CATEGORY_CN;
        width += known ? static_cast<std::size_t>(utf8proc_charwidth(codePoint)) : 1;
    }
    return width;
}

std::size_t IndexOfCharacter(std::string_view text, std::size_t number)
{
    std::size_t index = 0;
    while (number-- > 0 && index < text.size())
        NextUtf8CodePoint(text.data(), text.size(), index);
    return index;
}
