#include "TalAttributeSchemaHost/text/Utf8.h"

#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace tal {

std::string ToUtf8(const GuString& text)
{
    std::string bytes;
    bytes.reserve(text.GetLength());
    for (std::size_t i = 0; i < text.GetLength();) {
        const char32_t codePoint = NextCodePoint(text.c_str(), text.GetLength(), i);
        const bool unpaired = IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint);
        AppendUtf8(bytes, unpaired ? kReplacementCharacter : codePoint);
    }
    return bytes;
}

GuString FromUtf8(std::string_view text)
{
    std::basic_string<GuChar> units;
    units.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        AppendCodePoint(units, NextUtf8CodePoint(text.data(), text.size(), i));
    return GuString(units.c_str(), static_cast<int>(units.size()));
}

} // namespace tal
