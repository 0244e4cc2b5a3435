// The examples of the manual page and of docs/pre-commit.md, run in a real git repository.
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;

namespace {

const fs::path kRoot = PROJECT_ROOT;
const std::string kOldDocument =
    "<Model><AttributeDefinition><Attributes><Attribute ID='A_SPEED' Label='Speed'/></Attributes>"
    "</AttributeDefinition><Entities><Entity Type='Turbine'/></Entities></Model>\n";
const std::string kNewDocument =
    "<Model><AttributeDefinition><Attributes><Attribute ID='A_SPEED' Label='Rotor speed'/>"
    "<Attribute ID='A_POWER'/></Attributes></AttributeDefinition><Entities><Entity Type='Turbine'/>"
    "</Entities></Model>\n";
const std::string kBroken = "<Model>\n";

/// What stands between lines that begin with `begin` and with `end`.
std::vector<std::string> Blocks(const std::string& text, const std::string& begin, const std::string& end)
{
    std::vector<std::string> blocks;
    bool inside = false;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!inside && line == begin) {
            inside = true;
            blocks.emplace_back();
        } else if (inside && line == end) {
            inside = false;
        } else if (inside) {
            blocks.back() += line + "\n";
        }
    }
    return blocks;
}

class Examples : public Talschema
{
protected:
    void SetUp() override
    {
        if (ToolIsForWindows())
            GTEST_SKIP() << "git and its hooks run on this system";
        fs::create_directories(m_directory / "schemas/drafts");
        fs::create_directory(m_directory / "bin");
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

    void Configure(const std::string& key, const std::string& attributes = "*.xml diff=talschema") const
    {
        std::string commands;
        for (const std::string& block : Blocks(FileContent(kRoot / "docs/pre-commit.md"), "```sh", "```")) {
            if (block.find("git config " + key) == 0)
                commands = block;
        }
        ASSERT_NE(commands, "") << key;
        ASSERT_EQ(Git(commands).exitCode, 0) << commands;
        Write(".gitattributes", attributes + "\n");
    }
};

TEST_F(Examples, OfTheManualRun)
{
    const std::regex escapes(R"(\\\(aq|\\-)");
    std::map<std::string, Result> results;
    std::string all;
    const std::string manual = FileContent(kRoot / "docs/talschema.1");
    for (std::string block : Blocks(manual.substr(manual.find(".SH EXAMPLES")), ".EX", ".EE")) {
        block = std::regex_replace(block, std::regex("\\\\\\(aq"), "'");
        block = std::regex_replace(block, std::regex("\\\\(.)"), "$1");
        const Result result = Git(block);
        results.emplace(block.substr(0, block.find('\n')), result);
        EXPECT_LE(result.exitCode, 1) << block << result.err;
        EXPECT_EQ(result.err.find("error"), result.err.find("errors")) << block << result.err;
        all += result.out;
    }
    EXPECT_GE(results.size(), 5U);
    EXPECT_NE(("\n" + all).find("\nA_POWER\n"), std::string::npos)
        << all; // that was added since the last commit
    EXPECT_TRUE(fs::exists(m_directory / "turbine.svg"));
    EXPECT_EQ(Git("git config diff.talschema.command").out, "talschema diff --git --\n");
}

TEST_F(Examples, OfTheHookStopACommit)
{
    std::string hook;
    for (const std::string& block : Blocks(FileContent(kRoot / "docs/pre-commit.md"), "```sh", "```")) {
        if (block.rfind("#!", 0) == 0)
            hook = block;
    }
    ASSERT_NE(hook, "");
    fs::create_directories(m_directory / ".git/hooks");
    Write(".git/hooks/pre-commit", hook);
    ASSERT_EQ(Git("chmod +x .git/hooks/pre-commit; git commit -qam two").exitCode, 0);

    // It is the staged document that counts, not the one in the working tree.
    Write("schemas/a b.xml", "<Model>\n<Storag/></Model>");
    const std::string mend = "echo '<Model/>' >'schemas/a b.xml'; ";
    const Result stopped = Git("git add schemas; " + mend + "git commit -qm three");
    EXPECT_EQ(stopped.exitCode, 1);
    EXPECT_NE((stopped.out + stopped.err).find("schemas/a b.xml:2:2: warning: "), std::string::npos)
        << stopped.out << stopped.err;
    EXPECT_EQ(Git("git add schemas; git commit -qm three").exitCode, 0);
    EXPECT_EQ(Git("git rm -q 'schemas/a b.xml'; git commit -qm four").exitCode, 0);
}

TEST_F(Examples, OfTheExternalDiffShowObjects)
{
    Configure("diff.talschema.command");
    const Result changed = Git("git diff");
    EXPECT_EQ(changed.exitCode, 0) << changed.err;
    EXPECT_NE(changed.out.find("diff --talschema a/schemas/turbine.xml b/schemas/turbine.xml\n"
                               "Attributes: 1 added, 1 changed\n"),
              std::string::npos)
        << changed.out;
    EXPECT_NE(changed.out.find("b/schema.xml\n"), std::string::npos);

    // New, deleted, renamed, without any difference, and broken: git goes on to the next one.
    Write("new.xml", kOldDocument);
    Write("schemas/drafts/draft.xml", kBroken);
    Write("schemas/turbine.xml", "<!-- A comment. -->" + kOldDocument);
    const Result all = Git(
        "git rm -q --cached schema.xml; git add new.xml; git diff HEAD --no-renames; git diff HEAD -M20%");
    EXPECT_EQ(all.exitCode, 0) << all.err;
    for (const std::string expected :
         {"a/schemas/drafts/draft.xml b/schemas/drafts/draft.xml\nschemas/drafts/draft.xml:2:1: error: ",
          "a/new.xml b/new.xml\nAttributes: 1 added\n", "a/schema.xml b/schema.xml\nAttributes: 1 removed\n",
          "a/schemas/turbine.xml b/schemas/turbine.xml\nnothing that is read differs\n",
          "a/schema.xml b/new.xml\nnothing that is read differs\n"})
        EXPECT_NE(all.out.find(expected), std::string::npos) << expected << "\nin\n" << all.out;
    EXPECT_NE(Git("GIT_PAGER_IN_USE=1 TERM=xterm git diff").out.find("\033[1m"), std::string::npos);
    EXPECT_EQ(Git("GIT_PAGER_IN_USE=1 TERM=dumb git diff").out.find('\033'), std::string::npos);
    EXPECT_EQ(Git("talschema diff --git a b").exitCode, 2);
}

TEST_F(Examples, OfTheTextConversionShowWhatIsRead)
{
    Configure("diff.talschema.textconv");
    const std::string changed = Git("git diff schemas/turbine.xml").out;
    EXPECT_NE(changed.find("-      \"name\": \"Speed\",\n+      \"name\": \"Rotor speed\",\n"),
              std::string::npos)
        << changed;
    Write("schemas/turbine.xml", "<!-- A comment. -->" + kOldDocument);
    EXPECT_EQ(Git("git diff schemas/turbine.xml").out.find("\n-"), std::string::npos);
    Write("schemas/turbine.xml", kBroken);
    EXPECT_NE(Git("git diff schemas/turbine.xml").out.find("\n+<Model>\n"), std::string::npos);
}

TEST_F(Examples, OfTheDiffToolAndThePipeShowObjects)
{
    Configure("difftool.talschema.cmd");
    Write("new.xml", kOldDocument);
    const Result tool = Git("git add new.xml; git difftool --tool=talschema HEAD");
    EXPECT_EQ(tool.exitCode, 0) << tool.err;
    EXPECT_NE(tool.out.find("Attributes: 1 added, 1 changed\n"), std::string::npos) << tool.out;
    EXPECT_NE(tool.out.find("Entities: 1 added\n"), std::string::npos) << tool.out;
    std::string pipe;
    for (const std::string& block : Blocks(FileContent(kRoot / "docs/pre-commit.md"), "```sh", "```")) {
        if (block.find("git show HEAD:") == 0)
            pipe = Git(block).out;
    }
    EXPECT_EQ(pipe.rfind("Attributes: 1 added, 1 changed\n", 0), 0U) << pipe;
    EXPECT_EQ(Git("talschema check schemas").exitCode, 1);
    EXPECT_EQ(Git("talschema check schemas --exclude 'drafts/**'").exitCode, 0);
}

} // namespace
