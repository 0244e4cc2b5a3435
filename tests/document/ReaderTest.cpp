// Reading what cannot be read, what is hostile, and beside a host that uses the XML library itself.
#include <random>
#include <string>

#include <gtest/gtest.h>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityLoadCaseBuilder.h"
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

TEST(Reader, EntityExpansionIsBounded)
{
    std::string bomb = "<!DOCTYPE Model [<!ENTITY e0 'x'>";
    for (int i = 1; i <= 20; ++i) {
        const std::string below = "&e" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY e" + std::to_string(i) + " '" + below + below + "'>";
    }
    const std::string end = "]><Model><Storage><StorageType Value='";
    const std::string close = "'/></Storage></Model>";
    // Without a declared element the document is not valid, so it says what it holds.
    bomb.insert(bomb.find("<!ENTITY"), "<!ELEMENT Model (Storage)><!ELEMENT Storage (StorageType)><!ELEMENT "
                                       "StorageType EMPTY><!ATTLIST StorageType Value CDATA #REQUIRED>");
    EXPECT_TRUE(IsRead(bomb + end + "&e10;" + close)) << "a thousand expansions";
    EXPECT_FALSE(IsRead(bomb + end + "&e20;" + close)) << "a million expansions";
}

std::string NestedFolders(int levels)
{
    std::string document =
        "<Model><Entities><Entity Type='Iteration'><Rules><Create><LoadCaseTemplates><Condition>";
    for (int level = 1; level <= levels; ++level)
        document += "<AttributeFolder Name='" + std::to_string(level) + "'><Attribute IDRef='r'/>";
    for (int level = 1; level <= levels; ++level)
        document += "</AttributeFolder>";
    return document + "</Condition></LoadCaseTemplates></Create></Rules></Entity></Entities></Model>";
}

TEST(Reader, FoldersBelowTheDepthLimitAreLeftOut)
{
    const auto schema = ReadSchemaText(NestedFolders(kMaxFolderDepth + 10));
    const CustomEntity& entity = *tal::Entities(*schema).begin();
    int levels = 0;
    auto folders = tal::Folders(*tal::LoadCaseTemplates(entity).begin());
    for (; folders.begin() != folders.end(); ++levels) {
        const CAttributeFolders& folder = *folders.begin();
        EXPECT_EQ(folder.GetAttributeFolderName(), GuString(std::to_string(levels + 1).c_str()));
        EXPECT_EQ(folder.GetAllAttributeReferences().GetSize(), 1u);
        folders = tal::SubFolders(folder);
    }
    EXPECT_EQ(levels, kMaxFolderDepth);
    EXPECT_EQ(WriteSchemaText(schema.get()), Rewritten(NestedFolders(kMaxFolderDepth)));
}

TEST(Reader, DeepNestingNeverOverflowsTheStack)
{
    std::string nested;
    for (const char* tag : {"<a>", "</a>"}) {
        for (int level = 0; level < 200'000; ++level)
            nested += tag;
    }
    const std::string types = "<!ELEMENT Model ANY><!ELEMENT a ANY>";
    EXPECT_EQ(Rewritten("<Model>" + nested + "</Model>"), kEmptySchemaText);
    EXPECT_EQ(Rewritten("<!DOCTYPE Model [" + types + "<!ENTITY e '" + nested + "'>]><Model>&e;</Model>"),
              kEmptySchemaText);
}

TEST(Reader, FlippedCharactersNeverDoHarm)
{
    const std::string original = FileContent(TEST_DOCUMENTS "/../../examples/wind-turbine.xml");
    ASSERT_FALSE(original.empty());
    std::mt19937 random(2026); // always the same documents, so that a crash can be had again
    for (int round = 0; round < 200; ++round) {
        std::string document = original;
        for (int flips = 0; flips < 3; ++flips)
            document[random() % document.size()] = static_cast<char>(random() % 128);
        const auto schema = ReadSchemaText(document);
        ASSERT_NE(schema, nullptr) << "round " << round;
        ASSERT_NE(WriteSchemaText(schema.get()).find("<Model>"), std::string::npos) << "round " << round;
    }
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
