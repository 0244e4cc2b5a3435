#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"

#include "TalAttributeSchemaReader/model/genutl/NarrowText.h"

const char* GuConversionAllocator::UnicodeToAnsi(const wchar_t* text)
{
    return UnicodeToAnsi(GuString(text));
}

const char* GuConversionAllocator::UnicodeToAnsi(const char16_t* text)
{
    return UnicodeToAnsi(GuString(text));
}

const char* GuConversionAllocator::UnicodeToAnsi(const GuString& text)
{
    return m_results.emplace_front(NarrowFromUtf16(text.c_str(), text.GetLength())).c_str();
}

bool GuConversionAllocator::HoldsUnchanged(const GuString& text)
{
    return NarrowHolds(text.c_str(), text.GetLength());
}
