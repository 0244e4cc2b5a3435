// Conversion of text to the narrow code page.
#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"

#include "TalAttributeSchemaReader/model/genutl/NarrowText.h"

const char* GuConversionAllocator::UnicodeToAnsi(const wchar_t* text)
{
    return Convert(GuString(text));
}

const char* GuConversionAllocator::UnicodeToAnsi(const char16_t* text)
{
    return Convert(GuString(text));
}

bool GuConversionAllocator::HoldsUnchanged(const GuString& text)
{
    return NarrowHolds(text.c_str(), text.GetLength());
}

const char* GuConversionAllocator::Convert(const GuString& text)
{
    return m_results.emplace_front(NarrowFromUtf16(text.c_str(), text.GetLength())).c_str();
}
