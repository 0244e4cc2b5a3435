// The examples of the manual page and of docs/pre-commit.md, run in a real git repository.
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "tests/tools/Repository.h"

namespace fs = std::filesystem;

namespace {

const std::string kBroken = "<Model>\n";

class Examples : public Repository
{
protected:
    void Configure(const std::string& key, const std::string& attributes = "*.xml diff=talschema") const
    {
        const std::string commands = RecipeWith("sh", "git config " + key);
        ASSERT_EQ(Git(commands).exitCode, 0) << commands;
        Write(".gitattributes", attributes + "\n");
    }
};

/// What stands between lines that begin and end an example of the manual page.
std::vector<std::string> ManualExamples()
{
    const std::string manual = FileContent(kRoot / "docs/talschema.1");
    std::vector<std::string> blocks;
    bool inside = false;
    std::istringstream lines(manual.substr(manual.find(".SH EXAMPLES")));
    for (std::string line; std::getline(lines, line);) {
        if (line == ".EX")
            blocks.emplace_back();
        else if (inside && line != ".EE")
            blocks.back() += line + "\n";
        inside = line == ".EX" || (inside && line != ".EE");
    }
    return blocks;
}

TEST_F(Examples, OfTheManualRun)
{
    std::map<std::string, Result> results;
    std::string all;
    for (std::string block : ManualExamples()) {
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
    fs::create_directories(m_directory / ".git/hooks");
    Write(".git/hooks/pre-commit", RecipeWith("sh", "#!"));
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
    const std::string pipe = Git(RecipeWith("sh", "git show HEAD:")).out;
    EXPECT_EQ(pipe.rfind("Attributes: 1 added, 1 changed\n", 0), 0U) << pipe;
    EXPECT_EQ(Git("talschema check schemas").exitCode, 1);
    EXPECT_EQ(Git("talschema check schemas --exclude 'drafts/**'").exitCode, 0);
}

} // namespace
