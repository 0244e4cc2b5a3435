// Writing: what has no document of its own to be read from.
#include <string>

#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityLoadCaseBuilder.h"
#include "tests/TestSupport.h"

namespace {

TEST(Writer, ANullSchemaGivesAnEmptyRoot)
{
    EXPECT_EQ(WriteSchemaText(nullptr), "<Model/>");
}

TEST(Writer, AMissingDirectoryOrADirectoryAsFileIsPassedOver)
{
    const TemporaryDirectory directory;
    CDASchema schema;
    EXPECT_EQ(WriteStorageTalAttributeSchema((directory / "missing/out.xml").c_str(), &schema, nullptr), 1);
    EXPECT_EQ(WriteStorageTalAttributeSchema(directory.Path().c_str(), &schema, nullptr), 1);
    EXPECT_TRUE(std::filesystem::is_empty(directory.Path()));
}

TEST(Writer, NoContentMakesAWriteFail)
{
    CDASchema schema;
    std::basic_string<GuChar> everyUnit;
    for (char32_t unit = 1; unit <= 0xFFFF; ++unit)
        everyUnit += static_cast<GuChar>(unit);
    CMemoryAllocator::GetStorageObject(&schema)->SetStorageType(everyUnit.c_str());
    CMemoryAllocator::GetStorageObject(&schema)->SetSharedLocation(
        u"\xDF00 lost \x0001 \xFFFE kept \U0001F300");
    CMemoryAllocator::GetStorageObject(&schema)->SetWorkingDirectory(GuString(u"a\0b", 3));
    const auto back = ReadSchemaText(WriteSchemaText(&schema));
    ASSERT_NE(back->GetStorage(), nullptr);
    EXPECT_EQ(back->GetStorage()->GetStorageType().GetLength(), everyUnit.size()) << "one `?` for one unit";
    EXPECT_EQ(back->GetStorage()->GetWorkingDirectory(), GuString("a?b"));
    EXPECT_EQ(back->GetStorage()->GetSharedLocation(), GuString(u"? lost ? ? kept \U0001F300"));
}

TEST(Writer, FoldersBelowTheDepthLimitAreLeftOut)
{
    CDASchema schema;
    CustomEntity* entity = CMemoryAllocator::GetNewChildCustomEntity(&schema);
    entity->SetTypeName("Iteration");
    CAttributeFolders* folder =
        CMemoryAllocator::CreateAttributeFolderObject(CMemoryAllocator::CreateLoadCaseTemplateObject(entity));
    for (int level = 1; level < 5 * kMaxFolderDepth; ++level)
        folder = CMemoryAllocator::CreateAttributeFolderObject(folder);
    const std::string document = WriteSchemaText(&schema);
    int count = 0;
    for (std::size_t at = 0; (at = document.find("<AttributeFolder ", at)) != std::string::npos; ++at)
        ++count;
    EXPECT_EQ(count, kMaxFolderDepth);
}

TEST(Writer, NullListEntriesAreSkipped)
{
    CDASchema schema;
    schema.GetCustomEntityList()->Add(nullptr);
    CMemoryAllocator::CreateFileObject(&schema)->GetFileExtensionsList()->Add(nullptr);
    const std::string document = WriteSchemaText(&schema);
    EXPECT_NE(document.find("<Entities/>"), std::string::npos);
    EXPECT_EQ(document.find("<FileExtension"), std::string::npos);
}

} // namespace
