// Every document of the folder and every example, read and written, gives the expected rewrite byte for byte.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

namespace {

const std::filesystem::path kDocuments = TEST_DOCUMENTS;

std::vector<std::string> DocumentNames()
{
    const std::string ending = ".out.xml";
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kDocuments)) {
        const std::string name = entry.path().filename();
        if (name.size() > ending.size() && name.substr(name.size() - ending.size()) == ending)
            names.push_back(name.substr(0, name.size() - ending.size()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

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
    for (const char* name : {"first.xml", "second.xml"}) {
        WriteStorageTalAttributeSchema((directory / name).c_str(), schema.get(), nullptr);
        EXPECT_EQ(FileContent(directory / name), FileContent(kDocuments / (GetParam() + ".out.xml"))) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Folder, Documents, testing::ValuesIn(DocumentNames()), [](const auto& document) {
    std::string name = document.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
