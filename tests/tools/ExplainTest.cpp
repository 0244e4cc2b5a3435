// `talschema explain` and `talschema help`: every finding is explained, and every example shows what it says.
#include <algorithm>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "TalAttributeSchemaHost/findings/FindingExplanations.h"
#include "tests/tools/ToolProcess.h"

using nlohmann::json;

namespace {

using Explain = Talschema;

TEST_F(Explain, KnowsEveryFinding)
{
    const json sarif = json::parse(Run("echo '<Model/>' | talschema check --format sarif -").out);
    const json& rules = sarif.at("runs").at(0).at("tool").at("driver").at("rules");
    const std::string manual = FileContent(std::filesystem::path(PROJECT_ROOT) / "docs/talschema.1");
    int examples = 0;
    for (const tal::FindingRule& rule : tal::AllFindingRules()) {
        SCOPED_TRACE(rule.identifier);
        const tal::FindingExplanation* const explanation = tal::ExplanationOf(rule.id);
        ASSERT_TRUE(explanation);
        const Result told = Run(std::string("talschema explain ") + rule.identifier);
        EXPECT_EQ(told.out.rfind(std::string(rule.identifier) + ": " + rule.summary + "\n", 0), 0U);
        EXPECT_NE(told.out.find("\nRepair\n"), std::string::npos);
        const json& inSarif = rules.at(static_cast<std::size_t>(rule.id) - 1);
        EXPECT_EQ(inSarif.at("fullDescription").at("text"), explanation->meaning);
        EXPECT_EQ(inSarif.at("help").at("text").get<std::string>().rfind(explanation->repair, 0), 0U);

        std::string row = std::string(".TP\n.B ") + rule.identifier + "\n" + rule.summary + "\n";
        row = std::regex_replace(row, std::regex("-"), "\\-");
        EXPECT_NE(manual.find(row), std::string::npos) << "the manual page lacks\n" << row;
        if (!explanation->example)
            continue;
        ++examples;
        Write("example.xml", explanation->example);
        const json report =
            json::parse(Run("talschema check --code-page 1252 --format json example.xml").out).at("findings");
        const auto isIt = [&](const json& finding) { return finding.at("identifier") == rule.identifier; };
        EXPECT_TRUE(std::any_of(report.begin(), report.end(), isIt)) << explanation->example << report;
    }
    EXPECT_GT(examples, 30);
}

TEST_F(Explain, AndHelpAnswerEveryName)
{
    const std::vector<std::pair<std::string, std::string>> mistakes = {
        {"chek in.xml", "there is no command \"chek\"; did you mean \"check\"?"},
        {"--version-of fly", "there is no command \"fly\"; \"talschema help\" lists them"},
        {"help grpah", "there is no command \"grpah\"; did you mean \"graph\"?"},
        {"explain flag-vlaue", "there is no finding \"flag-vlaue\"; did you mean \"flag-value\"?"},
        {"explain \"$(printf '\\033')\"",
         "there is no finding \"\\u001B\"; \"talschema explain\" lists them"}};
    for (const auto& [arguments, message] : mistakes) {
        const Result result = Run("talschema " + arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments;
        EXPECT_EQ(result.err, "talschema: error: " + message + "\n");
    }
    EXPECT_EQ(Run("talschema help").out, Run("talschema --help").out);
    EXPECT_EQ(Run("talschema help check").out, Run("talschema check --help").out);
    EXPECT_NE(Run("talschema help check").out.find("Exit codes: 0 no errors or warnings, 1 "),
              std::string::npos);
    const std::string all = Run("talschema explain").out;
    for (const tal::FindingRule& rule : tal::AllFindingRules())
        EXPECT_NE(("\n" + all).find(std::string("\n") + rule.identifier + " "), std::string::npos);
}

} // namespace
