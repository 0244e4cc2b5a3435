// `talschema check --baseline`: old faults are counted, new ones are shown.
#include <regex>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

std::string Replaced(const std::string& text, const std::string& what, const std::string& with)
{
    return std::regex_replace(text, std::regex(what), with);
}

class BaselineFile : public Talschema
{
protected:
    static constexpr int kDocuments = 50;

    static std::string NameOf(int number) { return "schemas/" + std::to_string(number) + ".xml"; }

    /// A repository of documents with old faults, and what is known of them.
    void SetUp() override
    {
        fs::create_directory(m_directory / "schemas");
        fs::create_directory(m_directory / "below");
        for (int i = 0; i < kDocuments; ++i)
            Write(NameOf(i), "<Model>\n<AttributeDefinition>\n<Attributes>\n<Attribute ID='A' Unit='m'/>\n"
                             "<Attribute ID='B' Unit='m' Displayable='on' Editable='on'/>\n</Attributes>\n"
                             "</AttributeDefinition>\n<Remarks/>" +
                                 std::string(i % 10 == 0 ? "" : "</Model>\n"));
        const Result written = Run("talschema check --write-baseline known.json schemas/*.xml");
        EXPECT_EQ(written.exitCode, 0);
        EXPECT_EQ(written.out, "");
    }
};

TEST_F(BaselineFile, ShowsExactlyTheOneNewFault)
{
    const Result known = Run("talschema check --baseline known.json schemas/*.xml");
    EXPECT_EQ(known.exitCode, 0);
    EXPECT_EQ(known.out, "");
    EXPECT_EQ(known.err, "0 errors, 0 warnings and 0 notes in 50 documents; 255 known\n");

    const std::string old = Content(NameOf(7));
    Write(NameOf(7), "<!-- lines\nthat\nmove -->\n" +
                         Replaced(old, "<Attribute ID='B'",
                                  "<Attribute ID='New' Unit='K'/>\n<Attribute ID='C'/>\n<Attribute ID='B'"));
    const Result one = Run("talschema check --no-source --baseline known.json schemas/*.xml");
    EXPECT_EQ(one.exitCode, 1);
    EXPECT_EQ(one.out,
              "schemas/7.xml:8:21: warning: /Model/AttributeDefinition/Attributes/Attribute[2]: unknown "
              "attribute \"Unit\" is skipped [unknown-attribute]\n");
    EXPECT_EQ(one.err, "0 errors, 1 warning and 0 notes in 50 documents; 255 known\n");
}

TEST_F(BaselineFile, NamesWhatIsGone)
{
    Write(NameOf(3), Replaced(Content(NameOf(3)), "<Remarks/>", ""));
    Write(NameOf(4), Replaced(Content(NameOf(4)), "Editable='on'", ""));
    fs::remove(m_directory / NameOf(5));
    // Of documents that are not looked at, nothing is said. Names hang on the folder of the baseline.
    const Result gone = Run("cd below; talschema check --baseline ../known.json ../schemas/[346].xml");
    EXPECT_EQ(gone.exitCode, 0);
    EXPECT_EQ(
        Replaced(gone.err, "(\\.\\./schemas/5.xml: [^\n]*\n)", "5\n"),
        "../known.json: note: does not occur any more: ../schemas/3.xml: /Model/Remarks: unknown-element "
        "\"Remarks\"\n"
        "../known.json: note: does not occur any more: ../schemas/4.xml: "
        "/Model/AttributeDefinition/Attributes/Attribute[B]: flag-value \"on\"\n"
        "../known.json: note: does not occur any more: 5\n"
        "../known.json: note: does not occur any more: 5\n"
        "../known.json: note: does not occur any more: 5\n"
        "../known.json: note: does not occur any more: 5\n"
        "0 errors, 0 warnings and 0 notes in 3 documents; 13 known\n");
}

TEST_F(BaselineFile, IsTheSameHoweverItIsWritten)
{
    const std::string known = Content("known.json");
    EXPECT_EQ(json::parse(known).at("documents").size(), 50U);
    Run("cd below; ls -r ../schemas/*.xml | xargs \"$TALSCHEMA\" check --write-baseline ../again.json");
    EXPECT_EQ(Content("again.json"), known);
    // With what is known already, and what is new.
    Write(NameOf(1), Replaced(Content(NameOf(1)), "<Remarks/>", "<Remarks/><More/>"));
    EXPECT_EQ(Run("talschema check --baseline known.json --write-baseline known.json schemas/*.xml").exitCode,
              0);
    EXPECT_NE(Content("known.json"), known);
    EXPECT_EQ(Run("talschema check --baseline known.json schemas/*.xml").exitCode, 0);
}

TEST_F(BaselineFile, IsNeverHalfWrittenNorBelievedWhenItIsWrong)
{
    const std::string known = Content("known.json");
    const Result gone = Run("talschema check --write-baseline known.json schemas/1.xml gone.xml");
    EXPECT_EQ(gone.exitCode, 2);
    EXPECT_NE(gone.err.find("known.json: error: not written, for not every document could be looked at\n"),
              std::string::npos);
    EXPECT_EQ(Run("ulimit -f 1; talschema check --write-baseline known.json schemas/*.xml").exitCode, 2);
    EXPECT_EQ(Content("known.json"), known);

    for (const auto& [text, error] :
         {std::pair("{\n\"version\": 1,", ":2:14: error: not a baseline: not JSON\n"),
          std::pair("[]", ": error: not a baseline\n"),
          std::pair("{\"version\": 2}", ": error: a baseline of another version\n")}) {
        Write("wrong.json", text);
        const Result wrong = Run("talschema check --baseline wrong.json schemas/1.xml");
        EXPECT_EQ(wrong.exitCode, 2);
        EXPECT_EQ(wrong.err, std::string("wrong.json") + error);
    }
}

TEST_F(BaselineFile, KnowsWhatIsToldWithAnotherFinding)
{
    const auto document = [](const std::string& references) {
        return "<Model><Old><Attribute ID='A'/><Attribute "
               "ID='B'/></Old><AttributeDefinition><AttributeGroups>"
               "<AttributeGroup ID='G'>\n<Attribute IDRef='A'/>\n" +
               references + "</AttributeGroup></AttributeGroups></AttributeDefinition></Model>";
    };
    const auto checked = [&](const std::string& references) {
        Write("in.xml", document(references));
        const Result result = Run("talschema check --baseline one.json in.xml");
        return result.out.substr(0, result.out.find(": /")) + result.err;
    };
    for (const std::string known : {"", "<Attribute IDRef='A'/>\n"}) { // alone, and two with the element
        Write("in.xml", document(known));
        Run("talschema check --write-baseline one.json in.xml");
        const std::string last = known.empty() ? "3" : "4";
        EXPECT_EQ(checked(known + "<Attribute IDRef='B'/>")
                      .rfind("in.xml:" + last + ":19: warning0 errors, 1 warning and", 0),
                  0U);
        EXPECT_EQ(checked(known).rfind("0 errors, 0 warnings and", 0), 0U); // and no note of what is gone
    }
}

TEST_F(BaselineFile, IsKnownToCodeHosts)
{
    const auto results = [&](const std::string& arguments) {
        const Result result = Run("talschema check --format sarif " + arguments + " " + NameOf(2));
        return json::parse(result.out).at("runs").at(0).at("results");
    };
    const json before = results("");
    EXPECT_FALSE(before.at(0).contains("baselineState"));
    Write(NameOf(2), "\n<!-- talschema-disable-next-line unknown-element: later -->\n" +
                         Replaced(Content(NameOf(2)), "<Model>", "<Model><Fan/>") + "<!-- moved -->\n");
    std::string states;
    std::vector<json> fingerprints;
    for (const json& result : results("--baseline known.json")) {
        states += result.value("baselineState", "suppressed") + " ";
        if (result.value("baselineState", "") == "unchanged")
            fingerprints.push_back(result.at("partialFingerprints"));
        else
            EXPECT_EQ(result.at("suppressions").at(0).at("justification"), "later");
    }
    EXPECT_EQ(states, "suppressed unchanged unchanged unchanged unchanged unchanged ");
    ASSERT_EQ(fingerprints.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(before.at(i).at("partialFingerprints"), fingerprints[i]);
        EXPECT_EQ(std::count(fingerprints.begin(), fingerprints.end(), fingerprints[i]), 1);
    }
    Write(NameOf(2), "<Model/>\n");
    EXPECT_EQ(results("--baseline known.json").at(0).at("baselineState"), "absent");
}

} // namespace
