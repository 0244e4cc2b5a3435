// `talschema check --fix`: what it does to files.
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/Golden.h"
#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

const fs::path kFixes = fs::path(PROJECT_ROOT) / "tests/tools/fixes";

class Fixes : public Talschema, public testing::WithParamInterface<std::string>
{
};

TEST_P(Fixes, AreThoseExpected)
{
    const std::string before = FileContent(kFixes / (GetParam() + ".in.xml"));
    Write("in a.xml", before);
    fs::create_directory(m_directory / "below");
    // The patch counts from the folder in which the tool runs, also inside of a repository.
    const Result patch = Run("git init -q . && cp 'in a.xml' below/b.xml && cd below && "
                             "talschema check --fix --dry-run ../below/b.xml >../patch; "
                             "[ ! -s ../patch ] || git apply ../patch");
    EXPECT_EQ(patch.exitCode, 0) << patch.err;
    EXPECT_EQ(
        Run("talschema check --fix --dry-run 'in a.xml' >patch; [ ! -s patch ] || git apply --check patch")
            .exitCode,
        0);
    EXPECT_EQ(Content("in a.xml"), before);

    const Result first = Run("talschema check --fix --format json 'in a.xml'");
    ExpectGolden(kFixes / (GetParam() + ".out.xml"), Content("in a.xml"));
    EXPECT_EQ(Content("below/b.xml"), Content("in a.xml"));
    const json report = json::parse(first.out);
    EXPECT_EQ(report.at("summary").at("fixed") > 0, Content("in a.xml") != before);
    for (const json& finding : report.at("findings"))
        EXPECT_EQ(finding.at("fix"), json::array());
    EXPECT_EQ(
        json::parse(Run("talschema check --fix --format json 'in a.xml'").out).at("summary").at("fixed"), 0);
}

INSTANTIATE_TEST_SUITE_P(Folder, Fixes, testing::ValuesIn(NamesIn(kFixes)), TestName);

class Fix : public Talschema
{
};

TEST_F(Fix, LeavesAFileAloneThatItCannotReplace)
{
    const std::string declared = "<!DOCTYPE Model [<!ELEMENT Model (storage)><!ELEMENT storage EMPTY>]>\n";
    Write("declared.xml", declared + "<Model><storage/></Model>\n");
    Write("read-only.xml", "<Model><storage/></Model>\n");
    fs::permissions(m_directory / "read-only.xml", fs::perms::owner_read);
    const std::vector<std::string> names = Names();
    for (const auto& [arguments, error] : std::vector<std::pair<std::string, std::string>>{
             {"declared.xml",
              "declared.xml: error: with what there is to fix, the document would not be read: "},
             {"read-only.xml", "read-only.xml: error: the file is read-only\n"},
             {"gone.xml", "gone.xml: error: No such file or directory\n"},
             {"- <declared.xml", "<stdin>: error: the standard input cannot be fixed, only files\n"}}) {
        const Result result = Run("talschema check --fix " + arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments;
        EXPECT_EQ(result.err.substr(0, error.size()), error);
    }
    EXPECT_EQ(Content("declared.xml"), declared + "<Model><storage/></Model>\n");
    EXPECT_EQ(Content("read-only.xml"), "<Model><storage/></Model>\n");
    EXPECT_EQ(Names(), names);
    for (const std::string wrong : {"--dry-run declared.xml", "--fix --dry-run --format json declared.xml"})
        EXPECT_EQ(Run("talschema check " + wrong).exitCode, 2) << wrong;
}

TEST_F(Fix, DoesWhatIsWanted)
{
    const std::string document = "<Model>\n<storage/><Entities><Entity type='A'/></Entities></Model>";
    Write("a.xml", document);
    const Result dry = Run("talschema check --fix --dry-run a.xml");
    EXPECT_EQ(dry.exitCode, 1); // what is found is still there
    EXPECT_EQ(dry.out,
              "--- a/a.xml\n+++ b/a.xml\n@@ -1,2 +1,2 @@\n <Model>\n"
              "-<storage/><Entities><Entity type='A'/></Entities></Model>\n\\ No newline at end of file\n"
              "+<Storage/><Entities><Entity Type='A'/></Entities></Model>\n\\ No newline at end of file\n");
    EXPECT_EQ(dry.err, "0 errors, 2 warnings and 0 notes in 1 document; 2 to be fixed\n");
    EXPECT_EQ(Run("talschema check --fix --disable element-case,duplicate-id a.xml").err,
              "0 errors, 0 warnings and 0 notes in 1 document; 1 fixed\n");
    EXPECT_EQ(Content("a.xml"), "<Model>\n<storage/><Entities><Entity Type='A'/></Entities></Model>");
    EXPECT_EQ(Run("talschema check --fix a.xml").exitCode, 0);
    EXPECT_EQ(Content("a.xml"), "<Model>\n<Storage/><Entities><Entity Type='A'/></Entities></Model>");
}

} // namespace
