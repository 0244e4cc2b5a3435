// What a code page of Windows holds: POSIX.
#include "TalAttributeSchemaHost/platform/CodePage.h"

#include <cstddef>
#include <string>

#include <iconv.h>

#include "TalAttributeSchemaHost/platform/PosixCalls.h"

namespace tal {

namespace {

constexpr unsigned kUtf8 = 65001;

const char* UnitsOfThisMachine()
{
    const char32_t one = 1;
    return *reinterpret_cast<const char*>(&one) == 1 ? "UTF-32LE" : "UTF-32BE";
}

} // namespace

CodePage::CodePage(unsigned number) : m_number(number)
{
    const std::string name = number == kUtf8 ? "UTF-8" : "CP" + std::to_string(number);
    m_converter = iconv_open(name.c_str(), UnitsOfThisMachine());
    // The interface says so. NOLINTNEXTLINE(performance-no-int-to-ptr)
    if (m_converter == reinterpret_cast<iconv_t>(-1))
        ThrowError();
}

CodePage::~CodePage()
{
    iconv_close(m_converter);
}

bool CodePage::Holds(char32_t codePoint) const
{
    char bytes[8];
    char* in = reinterpret_cast<char*>(&codePoint);
    char* out = bytes;
    std::size_t left = sizeof codePoint;
    std::size_t room = sizeof bytes;
    return iconv(m_converter, &in, &left, &out, &room) == 0;
}

} // namespace tal
