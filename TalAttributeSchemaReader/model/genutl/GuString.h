// The text type of the model and of every interface.
#pragma once

#include <cstddef>
#include <new>
#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuChar.h"
#include "TalAttributeSchemaReader/model/genutl/GuExport.h"

/// A string of UTF-16 code units. It owns its text and takes any units, unpaired surrogates included.
///
/// Every constructor from a pointer takes text up to its terminating null, or exactly `length` characters
/// when `length` is above 0. A null pointer gives an empty string.
class CAESCHEMASCM_API GuString
{
public:
    /// An empty string.
    GuString() noexcept = default;
    /// From narrow text: UTF-8 on POSIX, the ANSI code page on Windows. Bytes that are no text become
    /// U+FFFD on POSIX and what the code page makes of them on Windows.
    GuString(const char* text, int length = 0);
    /// From wide text: UTF-16 units, or code points where `wchar_t` has 32 bits (beyond U+10FFFF: U+FFFD).
    GuString(const wchar_t* text, int length = 0);
    /// From UTF-16 units, taken unchanged.
    GuString(const char16_t* text, int length = 0);

    /// Below, equal to or above 0 as this text sorts before, equals or sorts after `other`, unit by unit.
    int Compare(const GuString& other) const noexcept { return m_text.compare(other.m_text); }
    /// As `Compare`, with the ASCII letters A to Z taken as small ones. No locale takes part.
    int CompareNoCase(const GuString& other) const noexcept;
    /// As above; a null `other` counts as empty text.
    int CompareNoCase(const wchar_t* other) const { return CompareNoCase(GuString(other)); }

    /// @{
    /// Whether the texts have the same units.
    friend bool operator==(const GuString& left, const GuString& right) noexcept
    {
        return left.m_text == right.m_text;
    }
    friend bool operator!=(const GuString& left, const GuString& right) noexcept { return !(left == right); }
    /// @}

    /// True when there is no text.
    bool IsEmpty() const noexcept { return m_text.empty(); }
    /// The number of UTF-16 code units.
    std::size_t GetLength() const noexcept { return m_text.size(); }
    /// The text, null-terminated; valid until the string changes or goes.
    const GuChar* c_str() const noexcept { return m_text.c_str(); }

    /// The text as a writable buffer with room for at least `length` units and a terminating null. Call
    /// `ReleaseBuffer` before using the string again.
    GuChar* GetBuffer(std::size_t length);
    /// Takes the buffer back with `length` units of text, or with the text up to its first null when `length`
    /// is 0.
    void ReleaseBuffer(std::size_t length);

    /// @{
    /// Strings on the heap live on this library's heap, also when a host has another one.
    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void operator delete(void* memory) noexcept;
    static void operator delete(void*, void*) noexcept {}
    /// @}

private:
    std::basic_string<GuChar> m_text;
};
