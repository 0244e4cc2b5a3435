// Where documents come from: files, folders, pipes and git.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/tools/ToolProcess.h"
#include "tools/talschema/input/Glob.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

const std::string kFan = "<Model><Entities><Entity Type='Fan'/></Entities></Model>";
const std::string kMistake = "<Model>\n<Storag/></Model>";

class Input : public Talschema
{
protected:
    /// The files that a check looked at, or why it could not.
    std::vector<std::string> Checked(const std::string& arguments) const
    {
        const json report = json::parse(Run("talschema check --format json " + arguments).out);
        std::vector<std::string> files;
        for (const json& finding : report.at("findings"))
            files.push_back(finding.at("file").get<std::string>() +
                            (finding.at("kind") == "system" ? ": " + finding.at("message").get<std::string>()
                                                            : std::string()));
        return files;
    }
};

TEST(Glob, MatchesAsShellsDo)
{
    struct Case
    {
        const char* pattern;
        std::vector<const char*> matching; // wholly, so that a folder of this name fits, too
        std::vector<const char*> below;    // in a folder that fits
        std::vector<const char*> others;
    };
    for (const Case& expected : std::vector<Case>{
             {"/*.xml", {"a.xml", ".xml"}, {"a.xml/b"}, {"a.xml.bak", "a.xsd", "b/a.xml"}},
             {"old/*.xml", {"old/a.xml"}, {"old/a.xml/b/c"}, {"a.xml", "old/b/a.xml", "very/old/a.xml"}},
             {"**/old/*.xml", {"old/a.xml", "very/old/a.xml"}, {}, {"cold/a.xml"}},
             {"old/**", {"old/a", "old/b/a"}, {}, {"old", "older/a"}},
             {"./old//", {"old"}, {"old/a", "old/b/a"}, {"older", "old.xml", "a/old"}},
             {"a**z/x", {"az/x", "a/b/z/x"}, {"az/x/y"}, {"a/x"}},
             {"a**/x", {"a/x", "ab/c/x"}, {}, {"ax"}},
             {"/part-?.xml", {"part-1.xml", "part-風.xml"}, {}, {"part-.xml", "part-12.xml"}},
             {"/[a-c]x[!0-9]", {"axb", "cx!", "cx風"}, {}, {"dxb", "ax1", "ax", "ax/"}},
             {"/[]]", {"]"}, {}, {"[]]"}},
             {"/a[b", {"a[b"}, {}, {"ab"}}}) {
        SCOPED_TRACE(expected.pattern);
        for (const char* path : expected.matching)
            EXPECT_TRUE(FileGlobMatches(expected.pattern, path) && FolderGlobMatches(expected.pattern, path))
                << path;
        for (const char* path : expected.below)
            EXPECT_TRUE(!FileGlobMatches(expected.pattern, path) && FolderGlobMatches(expected.pattern, path))
                << path;
        for (const char* path : expected.others)
            EXPECT_FALSE(FileGlobMatches(expected.pattern, path) || FolderGlobMatches(expected.pattern, path))
                << path;
    }
    // Without "/": names wherever they are, or what is in the folder of the project file.
    EXPECT_TRUE(FileGlobMatches("*.xml", "b/a.xml") && !FolderGlobMatches("*.xml", "b/a.xml"));
    EXPECT_TRUE(FolderGlobMatches("b*", "b/a.xml") && !FileGlobMatches("b*", "b/a.xml"));
    EXPECT_TRUE(FolderGlobMatches(".", "b/a.xml") && FolderGlobMatches("**", "a.xml"));
    // Not a matter of patience.
    for (const std::string part : {"*", "**", "*a", "**/", "*a*/"}) {
        std::string pattern;
        while (pattern.size() < 400)
            pattern += part;
        std::string path;
        while (path.size() < 4000)
            path += part.back() == '/' ? "aa/" : "a";
        EXPECT_FALSE(FileGlobMatches(pattern + "b", path) || FolderGlobMatches(pattern + "b", path)) << part;
    }
}

TEST_F(Input, IsEveryDocumentOfAFolder)
{
    Run("mkdir -p s/b/old s/.git s/empty; ln -s .. s/b/loop");
    for (const char* name : {"s/z.xml", "s/a.xml", "s/b/c.xml", "s/b/old/d.xml", "s/.git/e.xml", "s/f.txt"})
        Write(name, kMistake);
    using Names = std::vector<std::string>;
    EXPECT_EQ(Checked("s"), (Names{"s/a.xml", "s/b/c.xml", "s/b/old/d.xml", "s/z.xml"}));
    EXPECT_EQ(Checked("./s/ --exclude old"), (Names{"s/a.xml", "s/b/c.xml", "s/z.xml"}));
    EXPECT_EQ(Checked("s --include '*.txt' --include 'b/*.xml' s/z.xml"),
              (Names{"s/b/c.xml", "s/f.txt", "s/z.xml"}));
    EXPECT_EQ(Checked(". --exclude 's/b/**' --exclude a.xml"), (Names{"s/z.xml"}));
    EXPECT_EQ(Checked("s/empty s/f.txt --exclude '*.txt'"), // what is named itself is looked at
              (Names{"s/empty: no file in this folder matches \"*.xml\"", "s/f.txt"}));
    EXPECT_EQ(Run("talschema check s/empty").exitCode, 2);
}

TEST_F(Input, OfManyDocumentsIsAnnouncedOnATerminalOnly)
{
    if (ToolIsForWindows())
        GTEST_SKIP() << "Wine draws the console anew";
    Run("mkdir s");
    for (int i = 0; i < 25; ++i)
        Write("s/" + std::to_string(100 + i) + ".xml", "<Model/>");
    const std::string onTerminal = "script -qec \"'$TALSCHEMA' check s\" /dev/null </dev/null";
    const std::string shown = Run(onTerminal).out;
    EXPECT_NE(shown.find("reading s/107.xml, 8 of 25 ...\r\033[K"), std::string::npos) << shown;
    const Result quiet = Run("talschema check s");
    EXPECT_EQ(quiet.err, "0 errors, 0 warnings and 0 notes in 25 documents\n");
    EXPECT_EQ(Run("talschema check s/100.xml").err, "0 errors, 0 warnings and 0 notes in 1 document\n");
}

TEST_F(Input, ThatCannotBeReadIsInEveryReport)
{
    Write("a.xml", kMistake);
    const std::string command = "talschema check missing.xml a.xml . --include x --format ";
    const Result asJson = Run(command + "json");
    EXPECT_EQ(asJson.exitCode, 2);
    const json report = json::parse(asJson.out);
    EXPECT_EQ(report.at("summary").at("documents"), 1);
    EXPECT_EQ(report.at("summary").at("unreadable"), 2);
    EXPECT_EQ(report.at("findings").at(0).at("identifier"), "unreadable-file");
    const json run = json::parse(Run(command + "sarif").out).at("runs").at(0);
    EXPECT_EQ(run.at("results").size(), 1U);
    const json& invocation = run.at("invocations").at(0);
    EXPECT_EQ(invocation.at("executionSuccessful"), false);
    const json& notifications = invocation.at("toolExecutionNotifications");
    ASSERT_EQ(notifications.size(), 2U);
    EXPECT_EQ(notifications.at(0).at("message").at("text"), "No such file or directory");
    EXPECT_EQ(json::parse(Run("talschema check --format sarif a.xml").out)
                  .at("runs")
                  .at(0)
                  .at("invocations")
                  .at(0)
                  .at("executionSuccessful"),
              true);
    const json closed = json::parse(Run("talschema check - a.xml --format json <&-").out);
    EXPECT_EQ(closed.at("summary").at("unreadable"), 1);
    EXPECT_EQ(closed.at("findings").size(), 2U);
}

TEST_F(Input, ComesThroughPipesInEveryCommand)
{
    if (ToolIsForWindows())
        GTEST_SKIP() << "its shell has no such pipes";
    Write("a.xml", kFan);
    Write("b.xml", "<Model/>");
    const auto bash = [&](const std::string& command) {
        Write("run.sh", "talschema() { \"$TALSCHEMA\" \"$@\"; }\n" + command + "\n");
        return Run("bash run.sh");
    };
    for (const std::string reading : {"show --format json", "graph", "check", "rewrite -q"}) {
        const std::string end = reading == "rewrite -q" ? " out.xml; cat out.xml" : "";
        const auto withoutTitle = [](std::string text) {
            return text.compare(0, 7, "digraph") == 0 ? text.substr(text.find('\n')) : text;
        };
        const std::string expected = withoutTitle(bash("talschema " + reading + " a.xml" + end).out);
        for (const std::string input : {" - <a.xml", " <(cat a.xml)", " /dev/stdin < <(cat a.xml)"}) {
            const Result result = bash("talschema " + reading + input + end);
            EXPECT_EQ(withoutTitle(result.out), expected) << reading << input << result.err;
            EXPECT_EQ(result.exitCode, 0) << reading << input;
        }
    }
    const std::string difference = "Entities: 1 removed\n  - \"Fan\", line 1\n";
    for (const std::string inputs : {"<(cat a.xml) <(cat b.xml)", "<(cat a.xml) b.xml", "a.xml - <b.xml"})
        EXPECT_EQ(bash("talschema diff " + inputs).out.substr(0, difference.size()), difference) << inputs;
    EXPECT_EQ(bash("talschema diff - - <a.xml").exitCode, 2);
    EXPECT_EQ(bash("talschema diff /dev/null /dev/null").exitCode, 0);
    EXPECT_EQ(bash("talschema show <(true)").err.rfind("/dev/fd/", 0), 0U);
    EXPECT_EQ(bash("talschema rewrite a.xml -").exitCode, 2);
}

TEST_F(Input, HasTheNameThatItIsGiven)
{
    fs::create_directory(m_directory / "sub");
    Write("sub/a.dtd", "<!ELEMENT Model ANY>");
    Write("in.xml", "<!DOCTYPE Model SYSTEM 'a.dtd'>\n<Model></Mode>");
    const std::string input = " - --stdin-name sub/in.xml <in.xml";
    for (const std::string command : {"show", "graph", "diff /dev/null", "rewrite"})
        EXPECT_EQ(Run("talschema " + command + (command == "rewrite" ? " - out.xml" : " -") +
                      " --stdin-name sub/in.xml <in.xml")
                      .err.rfind("sub/in.xml:2:10: error: expected end of tag 'Model'", 0),
                  0U)
            << command;
    EXPECT_EQ(Run("talschema check" + input).out.rfind("sub/in.xml:1:25: warning: ", 0), 0U);
    EXPECT_EQ(Run("talschema check - <in.xml").out.rfind("<stdin>:1:25: warning: ", 0), 0U);
}

} // namespace
