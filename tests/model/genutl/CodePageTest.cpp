// Text in a host whose ANSI code page holds less than UTF-8; the manifest of each of these programs sets one.
#include <map>
#include <string>

#include <gtest/gtest.h>
#include <windows.h>

#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"
#include "tests/TestSupport.h"

namespace {

struct CodePage
{
    const char* narrow; // of kText
    const char* utf8;   // of the same text, written to a document
};

// Umlauts, two CJK characters, one beyond the first plane; two that best fit would turn into "A" and "a"; a
// control character, and half a pair.
constexpr char16_t kText[] = u"Gr\u00f6\u00dfe \u98a8\u8eca\U0001F300 \u0100\uff41 \u0001\xD83C";

const std::map<unsigned, CodePage> kCodePages = {
    {1252,
     {"Gr\xF6\xDF"
      "e ??? ?? ??",
      "Gr\xC3\xB6\xC3\x9F"
      "e ??? ?? ??"}},
    {932, {"Gr??e \x95\x97\x8E\xD4? ?\x82\x81 ??", "Gr??e \xE9\xA2\xA8\xE8\xBB\x8A? ?\xEF\xBD\x81 ??"}},
};

class CodePages : public testing::Test
{
protected:
    void SetUp() override { ASSERT_EQ(kCodePages.count(GetACP()), 1u) << GetACP(); }
};

TEST_F(CodePages, PutOneQuestionMarkForWhatTheyLackAndNothingElse)
{
    GuConversionAllocator allocator;
    EXPECT_STREQ(allocator.UnicodeToAnsi(kText), kCodePages.at(GetACP()).narrow);
    EXPECT_FALSE(GuConversionAllocator::HoldsUnchanged(kText));
    EXPECT_TRUE(GuConversionAllocator::HoldsUnchanged("plain\t~"));
}

TEST_F(CodePages, EveryCharacterComesBackOrBecomesOneQuestionMark)
{
    int kept = 0;
    for (char32_t codePoint = 1; codePoint <= 0x10FFFF; ++codePoint) {
        char16_t units[3] = {static_cast<char16_t>(codePoint)};
        if (codePoint > 0xFFFF) {
            units[0] = static_cast<char16_t>(0xD7C0 + (codePoint >> 10));
            units[1] = static_cast<char16_t>(0xDC00 + (codePoint & 0x3FF));
        }
        GuConversionAllocator allocator;
        const GuString back(allocator.UnicodeToAnsi(units));
        kept += back == GuString(units);
        ASSERT_TRUE(back == GuString(units) || back == GuString("?")) << std::hex << codePoint;
        ASSERT_TRUE(back == GuString(units) || !GuConversionAllocator::HoldsUnchanged(units))
            << std::hex << codePoint;
    }
    EXPECT_GT(kept, 200);
}

TEST_F(CodePages, DocumentsKeepWhatTheCodePageHoldsWhateverTheirPath)
{
    const TemporaryDirectory directory;
    const auto path =
        directory.Path() / std::filesystem::u8path("\xE9\xA2\xA8\xE8\xBB\x8A \xF0\x9F\x8C\x80.xml");
    CDASchema schema;
    CMemoryAllocator::GetStorageObject(&schema)->SetSharedLocation(kText);
    ASSERT_EQ(WriteStorageTalAttributeSchema(path.c_str(), &schema, nullptr), 1);
    EXPECT_NE(FileContent(path).find("<SharedLocation Value=\"" + std::string(kCodePages.at(GetACP()).utf8) +
                                     "\"/>"),
              std::string::npos)
        << FileContent(path);

    WriteFile(path, "<?xml version='1.0' encoding='UTF-8'?><Model><Storage><StorageType "
                    "Value='\xE9\xA2\xA8\xE8\xBB\x8A\xF0\x9F\x8C\x80'/></Storage></Model>");
    const auto read = ReadSchema(path);
    ASSERT_NE(read->GetStorage(), nullptr);
    EXPECT_EQ(read->GetStorage()->GetStorageType(), GuString(u"\u98a8\u8eca\U0001F300"))
        << "reading does not go through the code page";
}

} // namespace
