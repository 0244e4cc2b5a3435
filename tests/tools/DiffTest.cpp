// `talschema diff`: pairs of documents with the expected report beside them, and what holds for every
// document.
#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/Golden.h"
#include "tests/tools/RepositoryDocuments.h"
#include "tests/tools/ToolProcess.h"
#include "tools/talschema/diff/DiffCompare.h"
#include "tools/talschema/show/SchemaJson.h"

namespace fs = std::filesystem;
using nlohmann::json;
using nlohmann::ordered_json;

namespace {

const fs::path kPairs = fs::path(PROJECT_ROOT) / "tests/tools/diff";

/// An empty storage and empty creation rules are written where the model has none.
template <class Json>
Json WithoutEmptyElements(Json value)
{
    for (const char* key : {"storage", "creationRules"}) {
        if (value.is_object() && value.contains(key) &&
            (value[key] == Json{{"workingDirectory", ""}, {"sharedLocation", ""}, {"storageType", ""}} ||
             value[key] == Json{{"options", Json::array()}, {"rules", Json::array()}}))
            value[key] = nullptr;
    }
    for (Json& part : value) {
        if (part.is_structured())
            part = WithoutEmptyElements(std::move(part));
    }
    return value;
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

/// How often it is there: identifiers of the test documents stand for one object only.
int Rename(json& value, const json& oldName, const json& newName)
{
    int count = 0;
    if (value == oldName) {
        value = newName;
        return 1;
    }
    if (!value.is_structured())
        return 0;
    for (json& part : value)
        count += Rename(part, oldName, newName);
    return count;
}

class DiffPair : public Talschema, public testing::WithParamInterface<std::string>
{
protected:
    const std::string m_stem = (kPairs / GetParam()).string();
    const std::string m_documents = " '" + m_stem + ".a.xml' '" + m_stem + ".b.xml'";
};

TEST_P(DiffPair, IsReportedAsExpected)
{
    const Result result = Run("talschema diff" + m_documents);
    ExpectGolden(m_stem + ".diff", result.out);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.exitCode, result.out.empty() ? 0 : 1);
}

// Without the places that JSON names, nothing differs any more.
TEST_P(DiffPair, IsExplainedByItsJson)
{
    const Result result = Run("talschema diff --format json" + m_documents);
    json before = json::parse(Run("talschema show --format json '" + m_stem + ".a.xml'").out);
    json after = json::parse(Run("talschema show --format json '" + m_stem + ".b.xml'").out);
    const json differences = json::parse(result.out);
    ExpectGolden(m_stem + ".json", differences.dump(1) + "\n");
    EXPECT_EQ(result.exitCode, differences.empty() ? 0 : 1);

    const auto takeOut = [](json& document, const json& difference, const char* pointer, const char* value) {
        if (!difference.contains(pointer))
            return;
        json& place = document.at(json::json_pointer(difference.at(pointer).get<std::string>()));
        const bool renamed = difference.at("kind") == "renamed";
        if (!renamed && difference.at("kind") != "moved") {
            EXPECT_EQ(place, difference.at(value)) << difference;
        }
        place = renamed ? difference.at("new") : json();
    };
    json copy = before;
    for (const json& difference : differences) {
        if (difference.at("kind") == "renamed") {
            EXPECT_EQ(Rename(copy, difference.at("old"), difference.at("new")),
                      1 + difference.at("references").get<int>());
        }
    }
    // Backwards, so that a place goes after what is in it.
    for (auto difference = differences.rbegin(); difference != differences.rend(); ++difference) {
        takeOut(before, *difference, "oldPointer", "old");
        takeOut(after, *difference, "newPointer", "new");
    }
    // References follow a new identifier without a word of their own.
    for (const json& difference : differences) {
        if (difference.at("kind") == "renamed")
            Rename(before, difference.at("old"), difference.at("new"));
    }
    EXPECT_EQ(WithoutNullEntries(WithoutEmptyElements(before)),
              WithoutNullEntries(WithoutEmptyElements(after)));
}

INSTANTIATE_TEST_SUITE_P(Folder, DiffPair, testing::ValuesIn(NamesIn(kPairs)), TestName);

using Diff = Talschema;

// In the order of their names, a document stands beside its rewrite or beside a stranger.
TEST_F(Diff, IsEmptyExactlyWhereTheModelsAreTheSame)
{
    ordered_json neighbour;
    int same = 0;
    int different = 0;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        SCOPED_TRACE(document);
        ordered_json model = WithoutEmptyElements(SchemaToJson(*ReadSchema(document)));
        EXPECT_TRUE(CompareSchemas(model, model).empty());
        if (!neighbour.is_null()) {
            const bool isSame = model == neighbour;
            EXPECT_EQ(CompareSchemas(neighbour, model).empty(), isSame);
            EXPECT_EQ(CompareSchemas(model, neighbour).empty(), isSame);
            (isSame ? same : different) += 1;
        }
        neighbour = std::move(model);
    }
    EXPECT_GT(same, 10);
    EXPECT_GT(different, 10);
}

TEST_F(Diff, IsEmptyForARewriteThatLosesNothing)
{
    for (const char* document : {"examples/bracket.xml", "tests/tools/diff/empty-elements.a.xml"}) {
        const std::string original = " '" + (fs::path(PROJECT_ROOT) / document).string() + "'";
        const std::string lost = Run("talschema rewrite" + original + " out.xml").err;
        EXPECT_EQ(lost.find('['), std::string::npos) << lost; // no finding, only comments and layout
        EXPECT_EQ(Run("talschema diff" + original + " out.xml").out, "") << document;
    }
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
              "Attributes: 1 moved\n  > \"A_1\" moved from 1 to 20000, line 1\n");
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

} // namespace
