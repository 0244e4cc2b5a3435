// `talschema diff`: pairs of documents with the expected report beside them, and what holds for every
// document.
#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

const fs::path kTests = fs::path(PROJECT_ROOT) / "tests";
const fs::path kPairs = kTests / "tools/diff";

std::vector<std::string> NamesOfPairs()
{
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(kPairs))
        names.insert(entry.path().stem().stem().string());
    return {names.begin(), names.end()};
}

json WithoutNullEntries(json value)
{
    if (value.is_array())
        value.erase(std::remove(value.begin(), value.end(), json()), value.end());
    for (json& part : value) {
        if (part.is_structured())
            part = WithoutNullEntries(std::move(part));
    }
    return value;
}

class DiffPair : public Talschema, public testing::WithParamInterface<std::string>
{
protected:
    const std::string m_stem = (kPairs / GetParam()).string();
    const std::string m_documents = " '" + m_stem + ".a.xml' '" + m_stem + ".b.xml'";
};

TEST_P(DiffPair, IsReportedAsExpected)
{
    const std::string expected = FileContent(m_stem + ".diff");
    const Result result = Run("talschema diff" + m_documents);
    EXPECT_EQ(result.out, expected);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.exitCode, expected.empty() ? 0 : 1);
}

// Without the places that JSON names, nothing differs any more.
TEST_P(DiffPair, IsExplainedByItsJson)
{
    const Result result = Run("talschema diff --format json" + m_documents);
    json before = json::parse(Run("talschema show --format json '" + m_stem + ".a.xml'").out);
    json after = json::parse(Run("talschema show --format json '" + m_stem + ".b.xml'").out);
    const json differences = json::parse(result.out);
    EXPECT_EQ(result.exitCode, differences.empty() ? 0 : 1);

    const auto takeOut = [](json& document, const json& difference, const char* pointer, const char* value) {
        if (!difference.contains(pointer))
            return;
        json& place = document.at(json::json_pointer(difference.at(pointer).get<std::string>()));
        if (difference.at("kind") != "moved") {
            EXPECT_EQ(place, difference.at(value)) << difference;
        }
        place = nullptr;
    };
    // Backwards, so that a place goes after what is in it.
    for (auto difference = differences.rbegin(); difference != differences.rend(); ++difference) {
        takeOut(before, *difference, "oldPointer", "old");
        takeOut(after, *difference, "newPointer", "new");
    }
    EXPECT_EQ(WithoutNullEntries(before), WithoutNullEntries(after));
}

INSTANTIATE_TEST_SUITE_P(Folder, DiffPair, testing::ValuesIn(NamesOfPairs()), [](const auto& pair) {
    std::string name = pair.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

using Diff = Talschema;

TEST_F(Diff, TellsKindSectionPathAndValuesInJson)
{
    const std::string stem = (kPairs / "assemblies").string();
    const json differences =
        json::parse(Run("talschema diff --format json " + stem + ".a.xml " + stem + ".b.xml").out);
    EXPECT_EQ(differences, json::parse(R"([
        {"kind": "added", "section": "entities", "path": ["LoadCase", "children", "A_PART = Hub"],
         "newPointer": "/entities/0/children/0",
         "new": {"name": "A_PART", "value": "Hub", "creationRules": null}},
        {"kind": "changed", "section": "entities",
         "path": ["LoadCase", "children", "A_PART = Blade", "creationRules", "options", "Mesh", "value"],
         "oldPointer": "/entities/0/children/0/creationRules/options/0/value",
         "newPointer": "/entities/0/children/1/creationRules/options/0/value", "old": "Fine", "new": "Coarse"},
        {"kind": "changed", "section": "entities",
         "path": ["LoadCase", "children", "A_PART = Blade", "creationRules", "rules", "Count", "value"],
         "oldPointer": "/entities/0/children/0/creationRules/rules/0/value",
         "newPointer": "/entities/0/children/1/creationRules/rules/0/value", "old": "3", "new": "2"},
        {"kind": "removed", "section": "entities", "path": ["LoadCase", "children", "A_PART = Tower"],
         "oldPointer": "/entities/0/children/1",
         "old": {"name": "A_PART", "value": "Tower",
                 "creationRules": {"options": [], "rules": [{"name": "Count", "value": "1"}]}}}
    ])"));
}

// In the order of their names, a document stands beside its rewrite or beside a stranger.
TEST_F(Diff, IsEmptyExactlyWhereTheModelsAreTheSame)
{
    std::set<fs::path> documents;
    for (const fs::path& folder :
         {kTests / "../examples", kTests / "documents", kTests / "tools/documents", kPairs}) {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            if (entry.path().extension() == ".xml")
                documents.insert(entry.path());
        }
    }
    std::string neighbour;
    std::string neighbourModel;
    int same = 0;
    int different = 0;
    for (const fs::path& path : documents) {
        SCOPED_TRACE(path);
        const std::string document = "'" + path.string() + "'";
        const Result shown = Run("talschema show --format json " + document);
        if (shown.exitCode != 0)
            continue;
        const Result itself = Run("talschema diff " + document + " " + document);
        EXPECT_EQ(itself.out, "");
        EXPECT_EQ(itself.exitCode, 0);
        if (!neighbour.empty()) {
            const bool isSame = shown.out == neighbourModel;
            const Result diff = Run("talschema diff " + neighbour + " " + document);
            EXPECT_EQ(diff.out.empty(), isSame);
            EXPECT_EQ(diff.exitCode, isSame ? 0 : 1);
            (isSame ? same : different) += 1;
        }
        neighbour = document;
        neighbourModel = shown.out;
    }
    EXPECT_GT(same, 10);
    EXPECT_GT(different, 10);
}

TEST_F(Diff, ReportsOneMoveInAListOfThousands)
{
    const auto document = [](int first, int last, const std::string& end) {
        std::string attributes;
        for (int i = first; i <= last; ++i)
            attributes += "<Attribute ID='A_" + std::to_string(i) + "'/>";
        return "<Model><AttributeDefinition><Attributes>" + attributes + end +
               "</Attributes></AttributeDefinition></Model>";
    };
    Write("a.xml", document(1, 20000, ""));
    Write("b.xml", document(2, 20000, "<Attribute ID='A_1'/>"));
    EXPECT_EQ(Run("talschema diff a.xml b.xml").out,
              "Attributes: 1 moved\n  > \"A_1\" moved from 1 to 20000\n");
}

TEST_F(Diff, ExitCodesTellSameDifferentAndTrouble)
{
    Write("a.xml", "<Model/>");
    Write("b.xml", "<Model><Entities><Entity Type='Blade'/></Entities></Model>");
    Write("cut-off.xml", "<Model>");
    const std::vector<std::pair<std::string, int>> cases = {{"a.xml a.xml", 0},
                                                            {"a.xml b.xml", 1},
                                                            {"--format json a.xml b.xml", 1},
                                                            {"a.xml cut-off.xml", 2},
                                                            {"cut-off.xml a.xml", 2},
                                                            {"a.xml missing.xml", 2},
                                                            {"a.xml", 2},
                                                            {"a.xml a.xml b.xml", 2},
                                                            {"--format tree a.xml b.xml", 2}};
    for (const auto& [arguments, exitCode] : cases) {
        const Result result = Run("talschema diff " + arguments);
        EXPECT_EQ(result.exitCode, exitCode) << arguments;
        EXPECT_EQ(result.err.empty(), exitCode < 2) << arguments;
        EXPECT_EQ(result.out.empty(), exitCode != 1) << arguments;
    }
    EXPECT_EQ(Run("talschema diff --format json a.xml a.xml").out, "[]\n");
    EXPECT_EQ(Run("talschema diff a.xml cut-off.xml").err.rfind("cut-off.xml:1:8: error: ", 0), 0U);
    EXPECT_EQ(Run("talschema diff a.xml b.xml >/dev/full").exitCode, 2);
}

TEST_F(Diff, ColoursOnATerminalOnly)
{
    Write("a.xml", "<Model/>");
    Write("b.xml", "<Model><Entities><Entity Type='Blade'/></Entities></Model>");
    const std::string onTerminal = "script -qec \"'$TALSCHEMA' diff a.xml b.xml\" /dev/null </dev/null";
    EXPECT_NE(Run("unset NO_COLOR; " + onTerminal).out.find("\033[32m+ \"Blade\"\033[0m"), std::string::npos);
    EXPECT_EQ(Run("NO_COLOR=1 " + onTerminal).out.find('\033'), std::string::npos);
}

} // namespace
