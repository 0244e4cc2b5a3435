// Reading what cannot be read, what is hostile, and beside a host that uses the XML library itself.
#include <string>

#include <gtest/gtest.h>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include "tests/TestSupport.h"

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
using LeaksOfTheXmlLibrary = __lsan::ScopedDisabler;
#else
struct LeaksOfTheXmlLibrary
{
    LeaksOfTheXmlLibrary() {}
};
#endif

namespace {

constexpr char kStorage[] = R"(<Model><Storage><StorageType Value="Local"/></Storage></Model>)";

std::string Rewritten(const std::string& document)
{
    return WriteSchemaText(ReadSchemaText(document).get());
}

bool IsRead(const std::string& document)
{
    return ReadSchemaText(document)->GetStorage() != nullptr;
}

TEST(Reader, UnreadableFilesGiveAnEmptySchema)
{
    const TemporaryDirectory directory;
    WriteFile(directory / "empty.xml", "");
    const LeaksOfTheXmlLibrary ignored; // it leaks 54 bytes when it reads a directory
    for (const auto& path : {directory / "missing.xml", directory / "empty.xml", directory.Path(),
                             std::filesystem::path("nowhere://host/schema.xml"), std::filesystem::path()}) {
        const auto schema = ReadSchema(path);
        ASSERT_NE(schema, nullptr) << path;
        EXPECT_EQ(WriteSchemaText(schema.get()), kEmptySchemaText) << path;
    }
    EXPECT_EQ(ReadStorageTalAttributeSchema((directory / "missing.xml").c_str(), nullptr, nullptr), 1);
}

TEST(Reader, EveryTruncationOfADocumentGivesAnEmptySchema)
{
    const std::string document = kStorage;
    EXPECT_TRUE(IsRead(document));
    for (std::size_t length = 0; length < document.size(); ++length)
        EXPECT_EQ(Rewritten(document.substr(0, length)), kEmptySchemaText) << length;
}

TEST(Reader, TakesUrisAndUnusualFileNames)
{
    const TemporaryDirectory directory;
    for (const char* name : {"two words.xml", "per%20cent.xml",
                             "gr\xC3\xB6\xC3\x9F"
                             "e.xml"}) {
        WriteFile(directory / name, kStorage);
        EXPECT_NE(ReadSchema(directory / name)->GetStorage(), nullptr) << name;
    }
    EXPECT_NE(ReadSchema(FileUri(directory / "two%20words.xml"))->GetStorage(), nullptr);
}

TEST(Reader, DeepNestingNeverOverflowsTheStack)
{
    const std::string nested = Repeated("<a>", 200'000) + Repeated("</a>", 200'000);
    const std::string types = "<!ELEMENT Model ANY><!ELEMENT a ANY>";
    EXPECT_EQ(Rewritten("<Model>" + nested + "</Model>"), kEmptySchemaText);
    EXPECT_EQ(Rewritten("<!DOCTYPE Model [" + types + "<!ENTITY e '" + nested + "'>]><Model>&e;</Model>"),
              kEmptySchemaText);
}

TEST(Reader, LeavesTheXmlLibraryToAHostThatInitialisedIt)
{
    xercesc::XMLPlatformUtils::Initialize();
    EXPECT_TRUE(IsRead(kStorage));
    EXPECT_FALSE(IsRead("<Model"));
    EXPECT_EQ(Rewritten("<Model/>"), kEmptySchemaText);
    XMLCh* text = xercesc::XMLString::transcode("still usable");
    EXPECT_EQ(GuString(text), GuString("still usable"));
    xercesc::XMLString::release(&text);
    xercesc::XMLPlatformUtils::Terminate();
    EXPECT_TRUE(IsRead(kStorage));
}

} // namespace
