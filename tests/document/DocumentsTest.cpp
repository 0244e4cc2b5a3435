// Every document of the folder and every example, read and written, gives the expected rewrite byte for byte.
#include <string>

#include <gtest/gtest.h>

#include "tests/Golden.h"
#include "tests/TestSupport.h"

namespace {

const std::filesystem::path kDocuments = TEST_DOCUMENTS;

class Documents : public testing::TestWithParam<std::string>
{
};

TEST_P(Documents, RewriteAsExpected)
{
    auto input = kDocuments / (GetParam() + ".in.xml");
    if (!exists(input))
        input = kDocuments / "../../examples" / (GetParam() + ".xml");
    ASSERT_TRUE(exists(input));
    const TemporaryDirectory directory;
    const auto schema = ReadSchema(input);
    for (const char* name : {"first.xml", "second.xml"})
        WriteStorageTalAttributeSchema((directory / name).c_str(), schema.get(), nullptr);
    ExpectGolden(kDocuments / (GetParam() + ".out.xml"), FileContent(directory / "first.xml"));
    EXPECT_EQ(FileContent(directory / "second.xml"), FileContent(directory / "first.xml"));
}

INSTANTIATE_TEST_SUITE_P(Folder, Documents, testing::ValuesIn(NamesIn(kDocuments)), TestName);

} // namespace
