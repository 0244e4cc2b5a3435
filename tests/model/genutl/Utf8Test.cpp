// Narrow text on POSIX, where it is UTF-8: what it holds, and bytes that are none.
#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"

namespace {

TEST(GuString, BytesThatAreNoTextBecomeReplacementCharacters)
{
    EXPECT_EQ(GuString("a\xFFz"), GuString(u"a\uFFFDz"));
    EXPECT_EQ(GuString("\xC0\xAF"), GuString(u"\uFFFD\uFFFD")) << "overlong";
    EXPECT_EQ(GuString("\xE0\x80\xAF"), GuString(u"\uFFFD\uFFFD\uFFFD")) << "overlong";
    EXPECT_EQ(GuString("\xED\xA0\x80"), GuString(u"\uFFFD\uFFFD\uFFFD")) << "a surrogate";
    EXPECT_EQ(GuString("\xF4\x90\x80\x80"), GuString(u"\uFFFD\uFFFD\uFFFD\uFFFD")) << "beyond the last plane";
    EXPECT_EQ(GuString("\xE9\xA2"), GuString(u"\uFFFD\uFFFD")) << "cut off";
}

TEST(GuConversionAllocator, SparesTheConversionForAllTextThatADocumentCanCarry)
{
    EXPECT_TRUE(GuConversionAllocator::HoldsUnchanged(u"Gr\u00f6\u00dfe\t\uD7FF\uE000\uFFFD\U0001F300"));
}

} // namespace
