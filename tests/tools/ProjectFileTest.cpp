// `.talschema.toml`: what a project thinks of findings, and what it gets wrong.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;

namespace {

class ProjectFile : public Talschema
{
protected:
    void SetUp() override
    {
        for (const char* folder : {"new", "old", "old/deep", "old/deep/er"})
            fs::create_directory(m_directory / folder);
        for (const char* folder : {"", "new/", "old/", "old/deep/", "old/deep/er/"})
            Write(folder + std::string("a.xml"), "<Model xmlns='x'><Fan/></Model>\n"); // a note and a warning
    }

    /// The severities of the two findings, "wn", or "-" where there is none, and the exit code.
    std::string Outcome(const std::string& arguments) const
    {
        const Result result = Run("talschema check --no-source " + arguments);
        std::string outcome;
        for (const char* identifier : {"[unknown-element]", "[namespace-attribute]"}) {
            const std::size_t end = result.out.find(identifier);
            const std::size_t begin = end == std::string::npos ? end : result.out.rfind("\n", end) + 1;
            const std::string line = begin == std::string::npos ? "" : result.out.substr(begin, end - begin);
            outcome += line.find(": error: ") != std::string::npos     ? "e"
                       : line.find(": warning: ") != std::string::npos ? "w"
                       : line.find(": note: ") != std::string::npos    ? "n"
                                                                       : "-";
        }
        return outcome + std::to_string(result.exitCode);
    }
};

TEST_F(ProjectFile, DecidesWhatAFindingIs)
{
    EXPECT_EQ(Outcome("a.xml"), "wn1");
    EXPECT_EQ(Outcome("--fail-on error a.xml"), "wn0");
    EXPECT_EQ(Outcome("--fail-on error --warnings-as-errors a.xml"), "en1");
    EXPECT_EQ(Outcome("--fail-on note --disable unknown-element a.xml"), "-n1");
    EXPECT_EQ(Outcome("--disable unknown-element,namespace-attribute --fail-on note a.xml"), "--0");

    Write(".talschema.toml",
          "fail-on = 'error'\n[severity]\nunknown-element = 'error'\n"
          "[[folder]]\npath = 'old'\nseverity = {unknown-element = 'note'}\n"
          "[[folder]]\npath = '**/de?p/*'\n[folder.severity]\nnamespace-attribute = 'off'\n"
          "[[folder]]\npath = 'n*'\nseverity.unknown-element = 'warning'\n");
    EXPECT_EQ(Outcome("a.xml"), "en1");
    EXPECT_EQ(Outcome("new/a.xml"), "wn0");
    EXPECT_EQ(Outcome("--warnings-as-errors new/a.xml"), "en1");
    EXPECT_EQ(Outcome("--fail-on warning new/a.xml"), "wn1");
    EXPECT_EQ(Outcome("old/a.xml"), "nn0");
    EXPECT_EQ(Outcome("old/deep/er/a.xml"), "n-0");
    EXPECT_EQ(Outcome("--no-config old/deep/er/a.xml"), "wn1");
    EXPECT_EQ(Outcome("- <a.xml"), "en1"); // that of the folder in which the tool runs

    Write("old/.talschema.toml", "");
    EXPECT_EQ(Outcome("old/deep/er/a.xml"), "wn1"); // the nearest one, and no other
    EXPECT_EQ(Outcome("--config .talschema.toml old/deep/er/a.xml"), "n-0");
}

TEST_F(ProjectFile, IsToldWhereItIsWrong)
{
    for (const auto& [text, error] : std::vector<std::pair<std::string, std::string>>{
             {"\nfailon = 'note'", "2:1: error: unknown key \"failon\"; did you mean \"fail-on\"?"},
             {"fail-on = 'off'", "1:11: error: \"off\" is no severity: error, warning or note"},
             {"fail-on = 1", "1:11: error: fail-on is a text in quotes"},
             {"severity = 'note'", "1:12: error: severity is a table"},
             {"[severity]\n  flag-valeu = 'off'",
              "2:3: error: unknown identifier \"flag-valeu\"; did you mean \"flag-value\"?"},
             {"[severity]\nflag-value = 'Off'",
              "2:14: error: \"Off\" is no severity: error, warning, note or off"},
             {"[severity]\nwrong-root = 'off'",
              "2:1: error: \"wrong-root\" is always an error: nothing of such a document is read"},
             {"[folder]\npath = 'old'", "1:1: error: folder is a list of tables: [[folder]]"},
             {"\n[[folder]]\nseverity = {}", "2:1: error: the folder has no path"},
             {"[[folder]]\npath = '../old'", "2:8: error: path is a pattern for folders below this file's"},
             {"[severity\n", "1:10: error: "}}) {
        Write("old/.talschema.toml", text);
        const Result result = Run("talschema check a.xml old/a.xml");
        EXPECT_EQ(result.exitCode, 2) << text;
        EXPECT_EQ(result.out, "") << text; // nothing was looked at
        EXPECT_EQ(result.err.rfind("old/.talschema.toml:" + error, 0), 0U) << text << "\n" << result.err;
    }
    EXPECT_EQ(Run("talschema check --config gone.toml a.xml").err,
              "gone.toml: error: No such file or directory\n");
    EXPECT_EQ(Run("talschema check --config new --no-config a.xml").exitCode, 2);
}

} // namespace
