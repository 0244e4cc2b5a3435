#include "TalAttributeSchemaReader/model/genutl/GuString.h"

#include <algorithm>

#include "TalAttributeSchemaReader/model/genutl/NarrowText.h"
#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace {

template <class Character>
std::size_t TextLength(const Character* text, int length)
{
    if (!text)
        return 0;
    return length > 0 ? static_cast<std::size_t>(length) : std::char_traits<Character>::length(text);
}

// Nearly always the text is a name of the format, and every code page holds ASCII.
std::basic_string<GuChar> FromNarrow(const char* text, std::size_t length)
{
    const bool ascii =
        std::all_of(text, text + length, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return ascii ? std::basic_string<GuChar>(text, text + length) : Utf16FromNarrow(text, length);
}

constexpr GuChar AsciiLower(GuChar unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<GuChar>(unit - u'A' + u'a') : unit;
}

} // namespace

GuString::GuString(const char* text, int length) : m_text(FromNarrow(text, TextLength(text, length))) {}

GuString::GuString(const wchar_t* text, int length) : m_text(Utf16FromWide(text, TextLength(text, length))) {}

GuString::GuString(const char16_t* text, int length) : m_text(Utf16FromWide(text, TextLength(text, length)))
{
}

int GuString::CompareNoCase(const GuString& other) const noexcept
{
    const std::size_t common = std::min(m_text.size(), other.m_text.size());
    for (std::size_t i = 0; i < common; ++i) {
        const GuChar left = AsciiLower(m_text[i]);
        const GuChar right = AsciiLower(other.m_text[i]);
        if (left != right)
            return left < right ? -1 : 1;
    }
    if (m_text.size() == other.m_text.size())
        return 0;
    return m_text.size() < other.m_text.size() ? -1 : 1;
}

GuChar* GuString::GetBuffer(std::size_t length)
{
    if (length > m_text.size())
        m_text.resize(length);
    return m_text.data();
}

void GuString::ReleaseBuffer(std::size_t length)
{
    if (length == 0)
        length = std::char_traits<GuChar>::length(m_text.c_str());
    m_text.resize(std::min(length, m_text.size()));
}

void* GuString::operator new(std::size_t size)
{
    return ::operator new(size);
}

void* GuString::operator new(std::size_t size, const std::nothrow_t& none) noexcept
{
    return ::operator new(size, none);
}

void GuString::operator delete(void* memory) noexcept
{
    ::operator delete(memory);
}
