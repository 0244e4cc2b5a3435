// The texts by which the module identifies itself.
#include <regex>
#include <string>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

namespace {

TEST(Module, IdentifiesItself)
{
    EXPECT_STREQ(TalAttributeSchemaReader_get_module_info(0), "Dynamic linked library");
    const std::string version = TalAttributeSchemaReader_get_module_info(1);
    EXPECT_TRUE(std::regex_match(version, std::regex(R"(\d+\.\d+\.\d+\.[0-9a-f]{11})"))) << version;
    const std::string line = TalAttributeSchemaReader_get_module_info(2);
    EXPECT_EQ(line.rfind("TalAttributeSchemaReader version " + version + " (More informations on ", 0), 0u)
        << line;
    EXPECT_TRUE(std::regex_search(
        line, std::regex(R"(\), built on \S+ \([A-Z][a-z]{2} [ 1-3]\d 20\d\d at \d\d:\d\d:\d\d\)\S)")))
        << line;
    for (int which : {-1, 3, 1000})
        EXPECT_EQ(TalAttributeSchemaReader_get_module_info(which), line);
    EXPECT_NE(FileContent(LIBRARY_PATH).find("@(#)TAL " + line), std::string::npos);
    TalAttributeSchemaReaderInitialize();
    TalAttributeSchemaReaderTerminate();
}

} // namespace
