// The tool as a person or a script meets it: a process with output, messages and an exit code.
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/Golden.h"
#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;
using nlohmann::ordered_json;

namespace {

const fs::path kToolDocuments = fs::path(PROJECT_ROOT) / "tests/tools/documents";
const std::string kDeclaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="no" ?>)";
const std::string kOld = "the old content";

std::string DocumentOfAttributes(int count)
{
    return "<Model><AttributeDefinition><Attributes>" +
           Repeated("<Attribute ID='A_PEAK' Label='Peak temperature'/>", count) +
           "</Attributes></AttributeDefinition></Model>";
}

TEST_F(Talschema, ShowsEverythingInBothFormats)
{
    for (const std::string& name : NamesIn(kToolDocuments)) {
        SCOPED_TRACE(name);
        fs::copy(kToolDocuments / (name + ".xml"), m_directory.Path());
        ExpectGolden(kToolDocuments / (name + ".tree.txt"), Run("talschema show " + name + ".xml").out);
        ExpectGolden(kToolDocuments / (name + ".json"),
                     Run("talschema show --format=json " + name + ".xml").out);
    }
}

TEST_F(Talschema, EscapesInJsonAreThoseOfJson)
{
    Write(
        "in.xml",
        "<Model><AttributeDefinition><Attributes><Attribute ID='&#9;&#10;&#x7F;&#x9B;&#x202E;\\\"&#x1F300;'/>"
        "</Attributes></AttributeDefinition></Model>");
    const Result shown = Run("talschema show --format json in.xml");
    EXPECT_EQ(ordered_json::parse(shown.out).at("attributes").at(0).at("id"),
              "\t\n\x7F\u009B\u202E\\\"\U0001F300");
    EXPECT_EQ(shown.out.find("\u009B"), std::string::npos);

    Write("in.xml", "<?xml version='1.1'?><Model><Entities><Entity Type='a&#1;b'/></Entities></Model>");
    const auto control = ordered_json::parse(Run("talschema show --format json in.xml").out);
    EXPECT_EQ(control.at("entities").at(0).at("typeName"), "a\001b");
}

TEST_F(Talschema, FindsNothingWrongWithADocumentOfReferencesThatTheLibraryDoesNotFollow)
{
    Write("in.xml",
          "<!DOCTYPE Model [<!ELEMENT Model ANY><!ELEMENT Storage EMPTY><!ENTITY part '<Storage/>'>]>\n"
          "<Model>&part;</Model>");
    const Result shown = Run("talschema show --format json in.xml");
    EXPECT_EQ(shown.err, "");
    EXPECT_TRUE(ordered_json::parse(shown.out).at("storage").is_null());
}

TEST_F(Talschema, WarnsAboutWhatIsOutsideOfADocument)
{
    const std::string warning =
        "in.xml:1:60: warning: the entity \"part\" refers to \"http://localhost/part\", which "
        "the reader fetches when it needs it [external-reference]\n";
    for (const std::string command : {"show", "graph", "diff in.xml", "rewrite -q in.xml"}) {
        Write("in.xml",
              "<!DOCTYPE Model [<!ELEMENT Model ANY><!ENTITY part SYSTEM 'http://localhost/part'>]>\n"
              "<Model/>");
        const Result result = Run("talschema " + command + " in.xml");
        EXPECT_EQ(result.exitCode, 0) << command;
        EXPECT_EQ(result.err, command == "diff in.xml" ? warning + warning : warning) << command;
    }
}

TEST_F(Talschema, ColoursOnATerminalOnly)
{
    if (ToolIsForWindows())
        GTEST_SKIP() << "Wine draws the console anew";
    Write("a.xml", "<Model xmlns='x'/>");
    Write("b.xml", "<Model><Entities><Entity Type='Blade'/></Entities></Model>");
    for (const auto& [command, coloured] :
         std::vector<std::pair<std::string, std::string>>{{"show a.xml", "\033[36mAttribute groups\033[0m"},
                                                          {"check a.xml", "\033[36mnote:\033[0m"},
                                                          {"diff a.xml b.xml", "\033[32m+ \"Blade\"\033[0m"},
                                                          {"explain filters", "\033["}}) {
        SCOPED_TRACE(command);
        const std::string onTerminal = "script -qec \"'$TALSCHEMA' " + command + "\" /dev/null </dev/null";
        const auto isColoured = [](const Result& shown) {
            EXPECT_GT(shown.out.size(), 20U) << shown.err;
            return shown.out.find('\033') != std::string::npos;
        };
        const std::string shown = Run("unset NO_COLOR; TERM=xterm " + onTerminal).out;
        EXPECT_NE(shown.find(coloured), std::string::npos) << shown;
        EXPECT_TRUE(isColoured(Run("TERM=xterm NO_COLOR= " + onTerminal)));
        EXPECT_FALSE(isColoured(Run("TERM=xterm NO_COLOR=1 " + onTerminal)));
        EXPECT_FALSE(isColoured(Run("unset NO_COLOR; TERM=dumb " + onTerminal)));
        EXPECT_FALSE(isColoured(Run("unset NO_COLOR; TERM=xterm talschema " + command)));
    }
}

TEST_F(Talschema, SaysWhyADocumentCannotBeReadAndLeavesTheOutputAlone)
{
    Write("cut-off.xml", "<Model>\n  <Storage>\n");
    Write("invalid.xml", "<!DOCTYPE Model [<!ELEMENT Model EMPTY>]>\n<Model><Fan/></Model>");
    Write("hostile.xml", "<!DOCTYPE Model SYSTEM 'gone\u009B.dtd'>\n<Model/>");
    Write("outside.xml", "<!DOCTYPE Model [<!ENTITY part SYSTEM 'part.xml'>]>\n<Model>&part;</Model>");
    Write("part.xml", "<Fan>\n</Van>");
    Write("empty.xml", "");
    fs::create_directory(m_directory / "directory");
    fs::create_symlink("circle.xml", m_directory / "circle.xml");

    const std::string directory = ToolIsForWindows()
                                      ? "Z:\\tmp\\" + m_directory.Path().filename().string() + "\\"
                                      : fs::canonical(m_directory.Path()).string() + "/";
    const std::string nothing = "; nothing of the document is read\n";
    std::vector<std::pair<std::string, std::string>> cases = {
        {"missing.xml", "missing.xml: error: No such file or directory\n"},
        {"directory", "directory: error: Is a directory\n"},
        {"empty.xml", "empty.xml:1:1: error: invalid document structure" + nothing},
        {"cut-off.xml", "cut-off.xml:3:1: error: input ended before all started tags were ended; "
                        "last tag started is 'Storage'" +
                            nothing},
        {"invalid.xml",
         "invalid.xml:2:9: error: no declaration found for element 'Fan'" + nothing +
             "invalid.xml:2:16: error: element 'Fan' is not allowed for content model 'EMPTY'" + nothing},
        {"outside.xml", "outside.xml:2:2: error: no declaration found for element 'Model'" + nothing +
                            directory + "part.xml:1:5: error: no declaration found for element 'Fan'" +
                            nothing + directory + "part.xml:2:3: error: expected end of tag 'Fan'" + nothing},
        {"hostile.xml",
         "hostile.xml:1:36: error: unable to open DTD document '" + directory + "gone\\u009B.dtd'" + nothing},
    };
    if (!ToolIsForWindows()) {
        cases.emplace_back("/dev/null", "/dev/null:1:1: error: invalid document structure" + nothing);
        cases.emplace_back("circle.xml", "circle.xml: error: Too many levels of symbolic links\n");
    }
    Write("out.xml", kOld);
    for (const auto& [name, message] : cases) {
        SCOPED_TRACE(name);
        for (const std::string& command :
             {"talschema show '" + name + "'", "talschema rewrite '" + name + "' out.xml"}) {
            const Result result = Run(command);
            EXPECT_EQ(result.exitCode, 2);
            EXPECT_EQ(result.out, "");
            EXPECT_EQ(result.err, message);
        }
    }
    EXPECT_EQ(Content("out.xml"), kOld);
}

TEST_F(Talschema, ReplacesAFileButKeepsItsPermissionsAndTheLinksToIt)
{
    if (ToolIsForWindows())
        GTEST_SKIP() << "permissions and links of another system";
    Write("in.xml", "<Model/>");
    EXPECT_EQ(Run("umask 027; talschema rewrite in.xml new.xml").exitCode, 0);
    EXPECT_EQ(fs::status(m_directory / "new.xml").permissions(), fs::perms(0640));

    Write("old.xml", kOld);
    fs::permissions(m_directory / "old.xml", fs::perms(0604));
    fs::create_symlink("old.xml", m_directory / "link.xml");
    fs::create_symlink("not-yet.xml", m_directory / "dangling.xml");
    EXPECT_EQ(Run("talschema rewrite in.xml link.xml && talschema rewrite in.xml dangling.xml && "
                  "talschema rewrite in.xml in.xml")
                  .exitCode,
              0);
    EXPECT_EQ(fs::status(m_directory / "old.xml").permissions(), fs::perms(0604));
    EXPECT_TRUE(fs::is_symlink(m_directory / "link.xml") && fs::is_symlink(m_directory / "dangling.xml"));
    for (const std::string name : {"in.xml", "new.xml", "old.xml", "not-yet.xml"})
        EXPECT_EQ(Content(name), kDeclaration + kEmptySchemaText) << name;
    EXPECT_EQ(Names().size(), 6U);
}

TEST_F(Talschema, LeavesTheOutputAloneWhenItCannotWrite)
{
    Write("in.xml", DocumentOfAttributes(100));
    Write("old.xml", kOld);
    fs::create_directory(m_directory / "directory");
    ASSERT_EQ(Run("mkfifo pipe").exitCode, 0);
    const std::vector<std::string> before = Names();

    const std::string noSignal = ToolIsForWindows() ? "trap '' XFSZ; " : ""; // which would end Wine
    const Result diskFull = Run(noSignal + "ulimit -f 8; talschema rewrite in.xml old.xml");
    EXPECT_EQ(diskFull.exitCode, 2);
    EXPECT_EQ(diskFull.err, ToolIsForWindows()
                                ? "old.xml: error: General failure\n" // there is no limit there
                                : "old.xml: error: File too large\n");
    EXPECT_EQ(Content("old.xml"), kOld);

    const std::vector<std::pair<std::string, std::string>> cases = {
        {"directory", "directory: error: Is a directory\n"},
        {ToolIsForWindows() ? "nul" : "pipe",
         std::string(ToolIsForWindows() ? "nul" : "pipe") + ": error: not a regular file\n"},
        {"nowhere/out.xml", "nowhere/out.xml: error: No such file or directory\n"}};
    for (const auto& [output, message] : cases) {
        const Result result = Run("talschema rewrite in.xml " + output);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.err, message);
    }
    EXPECT_EQ(Names(), before);

    if (ToolIsForWindows())
        return;
    fs::permissions(m_directory / "old.xml", fs::perms(0444));
    const Result readOnly = Run("talschema rewrite in.xml old.xml");
    EXPECT_EQ(readOnly.exitCode, 2);
    EXPECT_EQ(readOnly.err, "old.xml: error: the file is read-only; --force replaces it\n");
    EXPECT_EQ(Content("old.xml"), kOld);
    EXPECT_EQ(Run("talschema rewrite --force in.xml old.xml").exitCode, 0);
    EXPECT_NE(Content("old.xml"), kOld);
}

#ifndef TAL_SANITIZED // a sanitized process does not start with so little memory
// The library reads nothing when memory runs out while it parses; that must not pass for an empty document.
TEST_F(Talschema, RewritesAllOrNothingWhateverMemoryThereIs)
{
    if (ToolIsForWindows())
        GTEST_SKIP() << "the limit is the shell's, and Wine needs gigabytes";
    Write("in.xml", DocumentOfAttributes(40000));
    ASSERT_EQ(Run("talschema rewrite in.xml complete.xml").exitCode, 0);
    const std::string complete = Content("complete.xml");
    int completed = 0;
    int failed = 0;
    for (int mebibytes = 64; mebibytes <= 288; mebibytes += 16) {
        Write("out.xml", kOld);
        const Result result =
            Run("ulimit -v " + std::to_string(mebibytes * 1024) + "; talschema rewrite in.xml out.xml");
        EXPECT_TRUE(Content("out.xml") == (result.exitCode == 0 ? complete : kOld)) << mebibytes << " MiB";
        ++(result.exitCode == 0 ? completed : failed);
    }
    EXPECT_GT(completed, 0);
    EXPECT_GT(failed, 0);
}
#endif

TEST_F(Talschema, TakesFileNamesAsTheyAre)
{
    std::vector<std::string> names = {"a b.xml", "50%20#1.xml", "Prüfstand 風車 🌀.xml", "-x.xml"};
    if (!ToolIsForWindows()) {
        fs::create_directory(m_directory / "file:");
        names.insert(names.end(), {"50%20#1?.xml", "file:/x.xml", "not-utf-8-\xFF.xml"});
    }
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        Write(name, "<Model><Entities><Entity Type='Fan'/></Entities></Model>");
        // Also without a locale in the environment.
        const Result result = Run("env -i \"$TALSCHEMA\" rewrite -q -- '" + name + "' '" + name + ".new'");
        EXPECT_EQ(result.err, "");
        EXPECT_NE(Content(name + ".new").find("\"Fan\""), std::string::npos);
    }
}

TEST_F(Talschema, ExitCodesTellUsageAndOutputErrors)
{
    Write("in.xml", "<Model/>");
    for (const std::string arguments :
         {"", "fly", "show", "show in.xml --format xml", "rewrite in.xml", "show a b", "--fly"}) {
        const Result result = Run("talschema " + arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments;
        EXPECT_EQ(result.out, "") << arguments;
        EXPECT_NE(result.err, "") << arguments;
    }
    const Result echoed = Run("talschema show in.xml --format \"$(printf '\\033[31m')\"");
    EXPECT_EQ(echoed.err.find('\033'), std::string::npos) << echoed.err;
    for (const std::string command : {"", "show", "rewrite", "check"}) {
        const Result help = Run("talschema " + command + " --help");
        EXPECT_EQ(help.exitCode, 0);
        EXPECT_NE(help.out.find("Usage: talschema " + command), std::string::npos) << help.out;
        const Result version = Run("talschema " + command + " --version");
        EXPECT_EQ(version.exitCode, 0);
        EXPECT_EQ(version.out,
                  std::string("talschema ") + TalAttributeSchemaReader_get_module_info(1) + "\n");
    }
    for (const std::string arguments : {"show in.xml", "--help", "--version"}) {
        const Result full = Run("talschema " + arguments + " >/dev/full");
        EXPECT_EQ(full.exitCode, 2);
        EXPECT_EQ(full.err, "standard output: error: No space left on device\n");
    }
}

} // namespace
