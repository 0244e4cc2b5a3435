// A git repository with documents in schemas/, the tool in its path, and the examples of docs/pre-commit.md.
#pragma once

#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/tools/ToolProcess.h"

inline const std::filesystem::path kRoot = PROJECT_ROOT;
inline const std::string kOldDocument =
    "<Model><AttributeDefinition><Attributes><Attribute ID='A_SPEED' Label='Speed'/></Attributes>"
    "</AttributeDefinition><Entities><Entity Type='Turbine'/></Entities></Model>\n";
inline const std::string kNewDocument =
    "<Model><AttributeDefinition><Attributes><Attribute ID='A_SPEED' Label='Rotor speed'/>"
    "<Attribute ID='A_POWER'/></Attributes></AttributeDefinition><Entities><Entity Type='Turbine'/>"
    "</Entities></Model>\n";

/// The examples of docs/pre-commit.md, as they stand there, by their languages.
inline std::map<std::string, std::vector<std::string>> ReadRecipes()
{
    std::map<std::string, std::vector<std::string>> recipes;
    std::vector<std::string>* language = nullptr;
    std::istringstream lines(FileContent(kRoot / "docs/pre-commit.md"));
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("```", 0) != 0) {
            if (language)
                language->back() += line + "\n";
        } else if (language) {
            language = nullptr;
        } else {
            language = &recipes[line.substr(3)];
            language->emplace_back();
        }
    }
    return recipes;
}
inline const std::map<std::string, std::vector<std::string>> kRecipes = ReadRecipes();

/// The one in which the words stand.
inline std::string RecipeWith(const std::string& language, const std::string& words)
{
    std::string found;
    for (const std::string& recipe : kRecipes.at(language)) {
        if (recipe.find(words) == std::string::npos)
            continue;
        EXPECT_EQ(found, "") << words;
        found = recipe;
    }
    EXPECT_NE(found, "") << words;
    return found;
}

class Repository : public Talschema
{
protected:
    void SetUp() override
    {
        if (ToolIsForWindows())
            GTEST_SKIP() << "git and its hooks run on this system";
        std::filesystem::create_directories(m_directory / "schemas/drafts");
        std::filesystem::create_directory(m_directory / "bin");
        Write("schemas/turbine.xml", kOldDocument);
        Write("schema.xml", kOldDocument);
        Write("schemas/drafts/draft.xml", "<Model><Storag/></Model>");
        Write("bin/talschema", "#!/bin/sh\nexec \"$TALSCHEMA\" \"$@\"\n");
        Write("config", "[user]\nname = A\nemail = a@example.org\n[init]\ndefaultBranch = main\n");
        const Result made =
            Git("chmod +x bin/talschema; git init -q && git add schemas schema.xml && git commit -qm one");
        ASSERT_EQ(made.exitCode, 0) << made.err;
        Write("schemas/turbine.xml", kNewDocument);
        Write("schema.xml", kNewDocument);
    }

    /// In the repository, with the tool in the path and nothing of the machine's configuration.
    Result Git(const std::string& commands) const
    {
        return Run("export PATH=\"$PWD/bin:$PATH\" GIT_CONFIG_NOSYSTEM=1 GIT_CONFIG_GLOBAL=\"$PWD/config\" "
                   "GIT_PAGER=cat HOME=\"$PWD\"; unset -f talschema\n" +
                   commands);
    }
};
