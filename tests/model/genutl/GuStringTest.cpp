// Text: construction from every width, conversion to the narrow code page, comparison, the writable buffer.
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"
#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace {

using Units = std::basic_string<GuChar>;

std::string Narrow(const GuString& text)
{
    return GuConversionAllocator().UnicodeToAnsi(text.c_str());
}

TEST(GuString, EveryConstructorTakesTheSameText)
{
    const GuString fromUnits(u"Gr\u00f6\u00dfe \u98a8 \U0001F300");
    EXPECT_EQ(fromUnits, GuString("Gr\xC3\xB6\xC3\x9F"
                                  "e \xE9\xA2\xA8 \xF0\x9F\x8C\x80"));
    EXPECT_EQ(fromUnits, GuString(L"Gr\u00f6\u00dfe \u98a8 \U0001F300"));
    EXPECT_EQ(fromUnits.GetLength(), 10u);
    EXPECT_EQ(GuString("bracket", 3), GuString(u"bra"));
    for (const GuString& empty : {GuString(), GuString(""), GuString(static_cast<const char*>(nullptr)),
                                  GuString(static_cast<const wchar_t*>(nullptr)),
                                  GuString(static_cast<const char16_t*>(nullptr), 5)}) {
        EXPECT_TRUE(empty.IsEmpty());
        EXPECT_EQ(empty.c_str()[0], u'\0');
    }
}

TEST(GuString, WideTextOfEveryWidth)
{
    const char16_t units[] = {u'a', 0xD83C, 0xDF00, 0xDC00};
    EXPECT_EQ(Utf16FromWide(units, 4), Units(units, units + 4)) << "units are taken unchanged";
    const char32_t codePoints[] = {U'a', 0x1F300, 0xDC00, 0x110000, 0xFFFFFFFF};
    EXPECT_EQ(Utf16FromWide(codePoints, 5), (Units{u'a', 0xD83C, 0xDF00, 0xDC00, 0xFFFD, 0xFFFD}));
}

TEST(GuConversionAllocator, EveryCodePointComesBackOrBecomesOneQuestionMark)
{
    for (char32_t codePoint = 1; codePoint <= 0x10FFFF; ++codePoint) {
        Units units;
        AppendCodePoint(units, codePoint);
        const GuString text(units.c_str());
        const bool kept =
            codePoint >= 0x20
                ? codePoint < 0xD800 || (codePoint > 0xDFFF && codePoint < 0xFFFE) || codePoint > 0xFFFF
                : codePoint == 0x9 || codePoint == 0xA || codePoint == 0xD;
        ASSERT_TRUE(kept || !GuConversionAllocator::HoldsUnchanged(text)) << std::hex << codePoint;
        ASSERT_EQ(GuString(Narrow(text).c_str()), kept ? text : GuString("?")) << std::hex << codePoint;
    }
}

TEST(GuConversionAllocator, UnpairedSurrogatesWhereverTheyStand)
{
    const auto narrow = [](const Units& units) { return Narrow(GuString(units.c_str())); };
    EXPECT_EQ(narrow({0xD83C}), "?");
    EXPECT_EQ(narrow({0xDF00, 0xD83C}), "??");
    EXPECT_EQ(narrow({0xD83C, u'a', 0xDF00}), "?a?");
    EXPECT_EQ(narrow({0xD83C, 0xD83C, 0xDF00}), "?\xF0\x9F\x8C\x80");
}

TEST(GuConversionAllocator, ResultsLiveTogetherAndNullIsEmpty)
{
    GuConversionAllocator allocator;
    const char* first = allocator.UnicodeToAnsi(u"rotor");
    const char* second = allocator.UnicodeToAnsi(L"tower");
    EXPECT_STREQ(first, "rotor");
    EXPECT_STREQ(second, "tower");
    EXPECT_STREQ(allocator.UnicodeToAnsi(static_cast<const char16_t*>(nullptr)), "");
    EXPECT_STREQ(allocator.UnicodeToAnsi(static_cast<const wchar_t*>(nullptr)), "");
}

TEST(GuString, Comparison)
{
    EXPECT_EQ(GuString("Yes").Compare("Yes"), 0);
    EXPECT_LT(GuString("Yes").Compare("yes"), 0);
    EXPECT_GT(GuString("Yes!").Compare("Yes"), 0);
    EXPECT_EQ(GuString("yEs").CompareNoCase(L"YeS"), 0);
    EXPECT_NE(GuString("Ye").CompareNoCase("Yes"), 0);
    EXPECT_NE(GuString("Yes").CompareNoCase("Ye"), 0);
    EXPECT_NE(GuString(u"Ye\u017F").CompareNoCase("Yes"), 0) << "a long s is no s";
    EXPECT_LT(GuString("A").CompareNoCase("b"), 0);
    EXPECT_GT(GuString("B").CompareNoCase("a"), 0);
    EXPECT_NE(GuString("@").CompareNoCase("`"), 0);
}

TEST(GuString, WritableBuffer)
{
    GuString text("tower");
    text.GetBuffer(0)[0] = u'p';
    text.ReleaseBuffer(0);
    EXPECT_EQ(text, GuString("power"));
    GuChar* buffer = text.GetBuffer(20);
    buffer[5] = u's';
    buffer[6] = u'\0';
    text.ReleaseBuffer(0);
    EXPECT_EQ(text, GuString("powers"));
    text.GetBuffer(0);
    text.ReleaseBuffer(3);
    EXPECT_EQ(text, GuString("pow"));
    text.GetBuffer(0);
    text.ReleaseBuffer(99);
    EXPECT_EQ(text.GetLength(), 3u) << "never beyond the buffer";
    const std::unique_ptr<GuString> onHeap(new GuString(text));
    EXPECT_EQ(*onHeap, text);
}

} // namespace
