// `talschema check`: its findings, its formats and its exit codes.
#include <algorithm>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/Golden.h"
#include "tests/tools/RepositoryDocuments.h"
#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

const fs::path kFindings = fs::path(PROJECT_ROOT) / "tests/tools/findings";

#ifdef TAL_SANITIZED
constexpr int kLargeDocument = 30'000; // about 8 MB
#else
constexpr int kLargeDocument = 300'000; // about 80 MB
#endif

class Findings : public Talschema, public testing::WithParamInterface<std::string>
{
};

TEST_P(Findings, AreThoseExpected)
{
    const bool codePage = GetParam() == "code-page-1252";
    const Result result = Run("cd '" + kFindings.string() + "' && talschema check " +
                              (codePage ? "--code-page 1252 " : "") + GetParam() + ".xml");
    ExpectGolden(kFindings / (GetParam() + ".findings"), result.out);
    const bool serious = std::regex_search(result.out, std::regex(": (error|warning): "));
    EXPECT_EQ(result.exitCode, serious ? 1 : 0);
    EXPECT_TRUE(
        std::regex_match(result.err, std::regex("\\d+ errors?, .* in 1 document(; \\d+ suppressed)?\n")))
        << result.err;
}

INSTANTIATE_TEST_SUITE_P(Folder, Findings, testing::ValuesIn(NamesIn(kFindings)), TestName);

class Check : public Talschema
{
protected:
    void SetUp() override
    {
        Write("clean.xml", "<Model/>\n");
        Write("note.xml", "<Model xmlns='x'/>\n");
        Write("a bracket.xml", "<Model>\n  <Storag/>\n</Model>\n");
        Write("broken.xml", "<Model>\n");
    }

    static std::set<std::string> Identifiers(const std::string& text)
    {
        std::set<std::string> identifiers;
        const std::regex identifier("\\[([a-z-]+)\\]\n");
        for (std::sregex_iterator found(text.begin(), text.end(), identifier), end; found != end; ++found)
            identifiers.insert((*found)[1]);
        return identifiers;
    }
};

TEST_F(Check, HasADocumentForEveryIdentifier)
{
    std::string all;
    for (const std::string& name : NamesIn(kFindings))
        all += FileContent(kFindings / (name + ".findings"));
    const json report = json::parse(Run("talschema check --format sarif clean.xml").out);
    std::set<std::string> rules;
    for (const json& rule : report.at("runs").at(0).at("tool").at("driver").at("rules"))
        rules.insert(rule.at("id").get<std::string>());
    std::set<std::string> found = Identifiers(all);
    found.insert({"unreadable-file", "system-failure"}); // of which no document is the reason
    EXPECT_EQ(found, rules);
}

TEST_F(Check, ExitCodesAndSummaries)
{
    struct Case
    {
        std::string arguments;
        int exitCode;
        std::string err;
    };
    const std::string name = "'a bracket.xml'";
    for (const Case& expected : std::vector<Case>{
             {"clean.xml", 0, "0 errors, 0 warnings and 0 notes in 1 document\n"},
             {"note.xml", 0, "0 errors, 0 warnings and 1 note in 1 document\n"},
             {name, 1, "0 errors, 1 warning and 0 notes in 1 document\n"},
             {"--warnings-as-errors note.xml " + name, 1, "1 error, 0 warnings and 1 note in 2 documents\n"},
             {"--disable unknown-element " + name, 0, "0 errors, 0 warnings and 0 notes in 1 document\n"},
             {"--quiet " + name, 1, ""},
             {"broken.xml", 1, "1 error, 0 warnings and 0 notes in 1 document\n"},
             {"missing.xml " + name, 2,
              "missing.xml: error: No such file or directory\n"
              "0 errors, 1 warning and 0 notes in 1 document\n"},
             {"--include nothing . -q", 2, ".: error: no file in this folder matches \"nothing\"\n"}}) {
        SCOPED_TRACE(expected.arguments);
        const Result result = Run("talschema check " + expected.arguments);
        EXPECT_EQ(result.exitCode, expected.exitCode);
        EXPECT_EQ(result.err, expected.err);
        EXPECT_EQ(result.out.empty(), expected.err.empty() || Identifiers(result.out).empty());
    }
    for (const std::string wrong : {"", "--disable not-well-formed clean.xml", "--disable nonsense clean.xml",
                                    "--format html clean.xml"})
        EXPECT_EQ(Run("talschema check " + wrong).exitCode, 2) << wrong;
}

TEST_F(Check, ReadsStandardInput)
{
    const Result result = Run("talschema check - <'a bracket.xml'");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out.rfind("<stdin>:2:4: warning: /Model/Storag: ", 0), 0U) << result.out;
    if (ToolIsForWindows())
        return; // its system gives it an empty file for these
    for (const std::string unreadable : {"<&-", "<."})
        EXPECT_EQ(Run("talschema check - " + unreadable).exitCode, 2) << unreadable;
}

TEST_F(Check, KnowsWhatEachCodePageLacks)
{
    Write("in.xml", "<Model><Storage><StorageType Value='ä風ä'/></Storage></Model>");
    const auto lost = [&](const char* page) {
        const Result result = Run(std::string("talschema check in.xml --code-page ") + page);
        EXPECT_EQ(result.exitCode, result.out.empty() ? 0 : 1) << page;
        return result.out.find("each of \"ä\"") != std::string::npos    ? "ä"
               : result.out.find("each of \"風\"") != std::string::npos ? "風"
                                                                        : result.out;
    };
    EXPECT_EQ(lost("1252"), "風");
    EXPECT_EQ(lost("932"), "ä");
    EXPECT_EQ(lost("65001"), "");
    EXPECT_EQ(Run("talschema check in.xml --code-page 99").err.substr(0, 48),
              "in.xml: error: the system knows no code page 99\n");
    EXPECT_EQ(Run("talschema check in.xml --code-page 99").exitCode, 2);
    EXPECT_EQ(Run("talschema check in.xml --code-page ANSI").exitCode, 2);
}

TEST_F(Check, SaysWhatIsFetchedBeforeItFails)
{
    Write("in.xml", "<!DOCTYPE Model SYSTEM 'gone.dtd'>\n<Model/>");
    const Result result = Run("talschema check in.xml");
    EXPECT_EQ(result.out.rfind("in.xml:1:25: warning: the document type refers to \"gone.dtd\", which", 0),
              0U)
        << result.out;
    EXPECT_EQ(result.err, "1 error, 1 warning and 0 notes in 1 document\n");
}

TEST_F(Check, ReportsToProgramsWhatIsExpected)
{
    const fs::path reports = fs::path(PROJECT_ROOT) / "tests/tools/reports";
    const auto report = [&](const std::string& options) {
        return json::parse(
            Run("cd '" + reports.string() + "' && talschema check --format " + options + " *.xml").out);
    };
    const json findings = report("json");
    ExpectGolden(reports / "findings.json", findings.dump(1) + "\n");
    const json run = report("sarif").at("runs").at(0);
    ExpectGolden(reports / "results.sarif.json", run.at("results").dump(1) + "\n");
    const json& rules = run.at("tool").at("driver").at("rules");
    for (const json& result : run.at("results"))
        EXPECT_EQ(rules.at(result.at("ruleIndex").get<std::size_t>()).at("id"), result.at("ruleId"));

    // Nobody loses what follows from a finding together with it, nor beside one that matters less.
    const json& folded = findings.at("findings").at(5).at("consequences");
    ASSERT_EQ(folded.size(), 2U);
    const auto tells = [&](const std::string& options) {
        const json all = report("json " + options).at("findings");
        return std::count(all.begin(), all.end(), folded.at(0)) == 1;
    };
    Write("project.toml", "[severity]\nunknown-element = 'note'\n");
    EXPECT_FALSE(tells("--no-config"));
    EXPECT_TRUE(tells("--disable unknown-element"));
    EXPECT_TRUE(tells("--config '" + (m_directory / "project.toml").string() + "'"));
    EXPECT_FALSE(report("json --disable unknown-reference").at("findings").at(4).contains("consequences"));
    const std::string absolute = "'" + (reports / "broken.xml").string() + "'";
    EXPECT_NE(Run("talschema check --format sarif " + absolute).out.find("\"uri\":\"file:///"),
              std::string::npos);
}

// Many mistakes beside many definitions: every pair of them would be compared.
TEST_F(Check, DoesNotLookForSuggestionsForEver)
{
    std::string document = "<Model><AttributeDefinition><Attributes>";
    std::string references;
    for (int i = 0; i < 20'000; ++i) {
        document += "<Attribute ID='x" + std::to_string(i) + std::string(60, 'a') + "'/>";
        references += "<Attribute IDRef='y" + std::to_string(i) + std::string(60, 'b') + "'/>";
    }
    Write("in.xml", document + "</Attributes><AttributeGroups><AttributeGroup>" + references +
                        "</AttributeGroup></AttributeGroups></AttributeDefinition></Model>");
    EXPECT_EQ(Run("talschema check in.xml").err, "0 errors, 20000 warnings and 0 notes in 1 document\n");
}

TEST_F(Check, RewriteTellsWhatItDidNotKeep)
{
    Write("in.xml", "<Model xmlns='x'>\n<Storag/><!-- A comment. -->\n<Fan/><Entities><Entity "
                    "Type='A'/><Entity Type='A'/>"
                    "</Entities>\n<Fan/></Model>\n");
    const Result told = Run("cp in.xml same.xml; talschema rewrite same.xml same.xml");
    EXPECT_EQ(told.exitCode, 0);
    EXPECT_EQ(told.err,
              "same.xml: note: not kept: comments and layout\n"
              "same.xml:1:8: note: not kept: an attribute that belongs to XML and not to the format: "
              "\"xmlns\" [namespace-attribute]\n"
              "same.xml:2:2: note: not kept: an element that nobody knows: \"Storag\", \"Fan\" in line 3, "
              "\"Fan\" in line 4 [unknown-element]\n");
    EXPECT_EQ(Run("talschema rewrite --quiet in.xml out.xml").err, "");
    EXPECT_EQ(Content("out.xml"), Content("same.xml"));
    EXPECT_EQ(Run("talschema rewrite out.xml again.xml").err, "");
}

TEST_F(Check, AgreesWithTheSchemaForValidators)
{
    int clean = 0;
    int faulty = 0;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        // The other parser differs in document types, in XML 1.1 and in what it thinks of xml:lang.
        if (std::regex_search(FileContent(document), std::regex("<!DOCTYPE|version=.1\\.1| xml:")))
            continue;
        const std::string name = "'" + document.string() + "'";
        const json report = json::parse(Run("talschema check --format json " + name).out);
        std::set<std::string> seen;
        for (const json& finding : report.at("findings")) {
            seen.insert(finding.at("kind").get<std::string>());
            seen.insert(finding.at("identifier").get<std::string>());
        }
        if (seen.count("renamed-attribute") > 0 || seen.count("reader-without-attributes") > 0)
            continue; // XML Schema has no words for these
        // What is empty counts to validators, and so does an identifier in an element that is skipped.
        if (std::regex_search(FileContent(document), std::regex(R"((ID|Type|Ref|IDRef)=(""|''))")))
            continue;
        const bool wrong =
            seen.count("unreadable") + seen.count("skipped") + seen.count("value") + seen.count("reference") >
            0;
        const Result validation =
            Run("xmllint --huge --noout --schema '" PROJECT_ROOT "/schema/attribute-schema.xsd' " + name);
        EXPECT_EQ(validation.exitCode == 0, !wrong) << name << "\n" << validation.err;
        ++(wrong ? faulty : clean);
    }
    EXPECT_GT(clean, 30);
    EXPECT_GT(faulty, 10);
}

/// Peak resident set in KiB of one run of `talschema check`, and the number of lines that it prints.
struct Effort
{
    long memory = 0;
    std::ptrdiff_t lines = 0;
};

Effort CheckLargeDocument(const fs::path& directory, int size)
{
    std::string document = "<Model>\n<AttributeDefinition>\n<Attributes>\n";
    for (int i = 0; i < size; ++i) {
        const std::string id = std::to_string(i);
        document +=
            "<Attribute ID=\"A_" + id + "\" Label=\"Blade temperature " + id +
            "\" Value=\"20\" min=\"0\" max=\"90\" Displayable=\"Yes\" Editable=\"No\" DataType=\"Double\"" +
            (i % 100 == 0 ? " Unit=\"K\"" : "") + "/>\n";
    }
    document += "</Attributes>\n</AttributeDefinition>\n<Entities>\n";
    for (int i = 0; i < size; ++i)
        document += "<Entity Type=\"T_" + std::to_string(i) +
                    "\" Script=\"\">\n<Definition>\n<AttributeSequence>\n<Attribute IDRef=\"A_" +
                    std::to_string(i) + "\"/></AttributeSequence></Definition></Entity>\n";
    WriteFile(directory / "large.xml", document + "</Entities></Model>\n");

    const pid_t child = fork();
    if (child == 0) {
        const int out = open((directory / "large.txt").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(out, STDOUT_FILENO);
        dup2(out, STDERR_FILENO);
        execl(TALSCHEMA_PATH, "talschema", "check", (directory / "large.xml").c_str(), nullptr);
        _exit(127);
    }
    rusage usage{};
    int status = 0;
    wait4(child, &status, 0, &usage);
    EXPECT_EQ(WIFEXITED(status) ? WEXITSTATUS(status) : -1, 1);
    const std::string findings = FileContent(directory / "large.txt");
    return {usage.ru_maxrss, std::count(findings.begin(), findings.end(), '\n')};
}

TEST_F(Check, MemoryGrowsNoFasterThanTheDocument)
{
    const Effort small = CheckLargeDocument(m_directory.Path(), kLargeDocument / 10);
    const Effort large = CheckLargeDocument(m_directory.Path(), kLargeDocument);
    EXPECT_EQ(small.lines, kLargeDocument / 1000 + 1);
    EXPECT_EQ(large.lines, kLargeDocument / 100 + 1);
    EXPECT_LT(large.memory, 12 * small.memory);
}

TEST_F(Check, IsNotAfraidOfDepthOrWidth)
{
    const auto nested = [](const std::string& start, const std::string& end, int depth) {
        return Repeated(start, depth) + Repeated(end, depth);
    };
    Write("deep.xml", "<Model>" + nested("<a>", "</a>", 300'000) +
                          "<Entities><Entity Type='Iteration'><Rules><Create><LoadCaseTemplates><Condition>" +
                          nested("<AttributeFolder Name='f'>", "</AttributeFolder>", 300'000) +
                          "</Condition></LoadCaseTemplates></Create></Rules></Entity></Entities></Model>");
    EXPECT_EQ(Run("talschema check deep.xml").err, "0 errors, 1 warning and 1 note in 1 document\n");

    std::string attributes;
    for (int i = 0; i < 30'000; ++i)
        attributes += " a" + std::to_string(i) + "=''";
    Write("wide.xml", "<Model><Storage" + attributes + "/></Model>");
    EXPECT_EQ(Run("talschema check wide.xml").err, "0 errors, 30000 warnings and 0 notes in 1 document\n");
}

} // namespace
