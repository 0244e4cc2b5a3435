// What a code page of Windows holds: Windows.
#include "TalAttributeSchemaHost/platform/CodePage.h"

#include <system_error>

#include <windows.h>

namespace tal {

CodePage::CodePage(unsigned number) : m_number(number)
{
    if (!IsValidCodePage(number))
        throw std::system_error(ERROR_INVALID_PARAMETER, std::system_category());
}

CodePage::~CodePage() = default;

bool CodePage::Holds(char32_t codePoint) const
{
    wchar_t units[2] = {static_cast<wchar_t>(codePoint)};
    if (codePoint > 0xFFFF) {
        units[0] = static_cast<wchar_t>(0xD7C0 + (codePoint >> 10));
        units[1] = static_cast<wchar_t>(0xDC00 + (codePoint & 0x3FF));
    }
    const bool utf8 = m_number == CP_UTF8;
    char bytes[8];
    BOOL replaced = FALSE;
    const int count =
        WideCharToMultiByte(m_number, utf8 ? 0 : WC_NO_BEST_FIT_CHARS, units, codePoint > 0xFFFF ? 2 : 1,
                            bytes, sizeof bytes, nullptr, utf8 ? nullptr : &replaced);
    return count > 0 && !replaced;
}

} // namespace tal
