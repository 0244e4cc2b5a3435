// Every document of the folder, read and written, gives the expected rewrite byte for byte.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

namespace {

std::vector<std::string> DocumentNames()
{
    const std::string ending = ".in.xml";
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DOCUMENTS)) {
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
    const auto document = std::filesystem::path(TEST_DOCUMENTS) / GetParam();
    const TemporaryDirectory directory;
    const auto schema = ReadSchema(document.string() + ".in.xml");
    for (const char* name : {"first.xml", "second.xml"}) {
        WriteStorageTalAttributeSchema((directory / name).c_str(), schema.get(), nullptr);
        EXPECT_EQ(FileContent(directory / name), FileContent(document.string() + ".out.xml")) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Folder, Documents, testing::ValuesIn(DocumentNames()), [](const auto& document) {
    std::string name = document.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
