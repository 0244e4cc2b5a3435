// Conversion of text to the narrow code page.
#pragma once

#include <forward_list>
#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuExport.h"
#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// Converts UTF-16 text to the narrow code page (UTF-8 on POSIX, the ANSI code page on Windows) and owns the
/// results: each stays valid until the allocator is destroyed.
class CAESCHEMASCM_API GuConversionAllocator
{
public:
    GuConversionAllocator() = default;
    GuConversionAllocator(const GuConversionAllocator&) = delete;
    GuConversionAllocator& operator=(const GuConversionAllocator&) = delete;

    /// @{
    /// Null-terminated narrow text, never null: a null `text` gives an empty one. One `?` stands for every
    /// character that the code page cannot hold, every unpaired surrogate and every code point that no
    /// XML 1.0 document can carry (control characters other than tab, line feed and carriage return; U+FFFE,
    /// U+FFFF).
    const char* UnicodeToAnsi(const wchar_t* text);
    const char* UnicodeToAnsi(const char16_t* text);
    /// @}
    /// Takes the whole string, nulls inside it included.
    const char* UnicodeToAnsi(const GuString& text);

    /// True when `text` is known to come back unchanged from narrow text, so that the conversion can be
    /// saved.
    static bool HoldsUnchanged(const GuString& text);

private:
    std::forward_list<std::string> m_results;
};
