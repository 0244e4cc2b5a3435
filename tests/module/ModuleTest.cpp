// The module from outside: its texts, its symbols, and that it cannot be unloaded.
#include <algorithm>
#include <cstdio>
#include <regex>
#include <set>
#include <string>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "tests/TestSupport.h"

namespace {

std::string OutputOf(const std::string& command)
{
    std::string output;
    FILE* pipe = popen(command.c_str(), "r");
    for (int c = 0; pipe && (c = std::fgetc(pipe)) != EOF;)
        output += static_cast<char>(c);
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

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

TEST(Module, ExportsTheFunctionsAndTheBuildersAndNothingElse)
{
    const std::string symbols = OutputOf("nm -DC --defined-only '" LIBRARY_PATH "'");
    std::set<std::string> functions;
    std::set<std::string> builders;
    const std::regex symbol(R"([0-9a-f]* [A-Za-z] (?:vtable for |typeinfo (?:name )?for )?(\w+)(::)?.*)");
    std::size_t begin = 0;
    for (std::size_t end; (end = symbols.find('\n', begin)) != std::string::npos; begin = end + 1) {
        const std::string line = symbols.substr(begin, end - begin);
        std::smatch match;
        ASSERT_TRUE(std::regex_match(line, match, symbol)) << line;
        const std::string name = match[1];
        if (name.find("asan") != std::string::npos || name.find("ubsan") != std::string::npos)
            continue;
        (name.rfind("CTal", 0) == 0 ? builders : functions).insert(name);
    }
    EXPECT_EQ(functions, (std::set<std::string>{
                             "ReadStorageTalAttributeSchema", "WriteStorageTalAttributeSchema",
                             "TalAttributeSchemaReaderInitialize", "TalAttributeSchemaReaderTerminate",
                             "TalAttributeSchemaReader_get_module_info",
                             "__localFnToKeepTalAttributeSchemaReaderDllLoaded"}));
    EXPECT_EQ(builders.size(), 17u);
    EXPECT_EQ(builders.count("CTalAttributeModelBuilder") + builders.count("CTalAttributeStorageBuilder"),
              0u);
    for (const std::string& builder : builders) {
        for (const std::string& member : {builder + "(GuString, ", builder + "(" + builder + " const&)",
                                          "operator=(" + builder + " const&)", "~" + builder + "()",
                                          std::string("Construct()"), std::string("Persist()")})
            EXPECT_NE(symbols.find(builder + "::" + member), std::string::npos) << builder << " " << member;
    }
}

} // namespace
