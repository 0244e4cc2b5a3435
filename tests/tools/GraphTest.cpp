// `talschema graph`: documents with the expected graph beside them, and what Graphviz makes of it.
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/Golden.h"
#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;

namespace {

const fs::path kTests = fs::path(PROJECT_ROOT) / "tests";
const fs::path kGraphs = kTests / "tools/graph";

std::set<std::string> Lines(const std::string& text)
{
    std::istringstream stream(text);
    std::set<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.insert(line.substr(std::min(line.size(), line.find_first_not_of(' '))));
    return lines;
}

class Graph : public Talschema
{
protected:
    /// What `dot` draws, once another parser has found it well-formed.
    std::string Drawn(const std::string& name) const
    {
        const Result drawn = Run("talschema graph " + name +
                                 " >graph.dot && dot -Tsvg graph.dot >graph.svg && "
                                 "xmllint --nonet --noout graph.svg && cat graph.svg");
        EXPECT_EQ(drawn.exitCode, 0) << drawn.err;
        return drawn.out;
    }
};

TEST_F(Graph, IsWrittenAsExpected)
{
    for (const std::string& name : NamesIn(kGraphs)) {
        fs::copy(kGraphs / (name + ".xml"), m_directory.Path());
        const Result result = Run("talschema graph " + name + ".xml");
        ExpectGolden(kGraphs / (name + ".dot"), result.out);
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.exitCode, 0);
    }
}

TEST_F(Graph, IsDrawnForEveryExample)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(kTests / "../examples")) {
        if (entry.path().extension() == ".xml") {
            EXPECT_NE(Drawn("'" + entry.path().string() + "'").find("<g id=\"node1\""), std::string::npos)
                << entry;
        }
    }
}

TEST_F(Graph, ShowsNastyNamesForWhatTheyAreAndWhatIsMissingInRed)
{
    fs::copy(kGraphs / "nasty-names.xml", m_directory.Path());
    const std::string svg = Drawn("nasty-names.xml");
    for (const std::string text :
         {R"(">&quot;&quot;</text>)", R"(">tab\tcsi\u009Bleft\u202E</text>)", R"(">line\nfeed</text>)",
          R"(">\N \G \l</text>)", R"(">&lt;b&gt;bold&lt;/b&gt;</text>)",
          R"(">&quot;quoted&quot; \&quot;</text>)", R"(">ends in \</text>)",
          R"(">&#45;&gt; ; { } [ ] | :</text>)",
          R"(">&amp;alpha; &amp;amp; &amp;#65; &amp; &amp;unknown;</text>)", R"(">風車 é 🌀</text>)",
          R"(">digraph</text>)", R"(" fill="red">gone &quot;\&amp;unknown;</text>)"})
        EXPECT_NE(svg.find(text), std::string::npos) << text << " in\n" << svg;
    EXPECT_EQ(svg.find("id=\"node10\""), std::string::npos) << "nine identifiers, nine nodes";
}

// Graphviz takes no more than 16,384 bytes in a row.
TEST_F(Graph, IsDrawnForNamesOfAnyLength)
{
    const std::string longName(20'000, 'x');
    const auto attribute = [](const std::string& id, const std::string& name) {
        return "<Attribute ID='" + id + "' Label='" + name + "'/>";
    };
    Write("in.xml", "<Model><AttributeDefinition><Attributes>" + attribute(longName + "1", "a") +
                        attribute(longName + "2", longName) + attribute(longName.substr(0, 100), "b") +
                        attribute(longName.substr(0, 100) + "… #1", Repeated("🌀", 5'000)) +
                        "</Attributes></AttributeDefinition><Entities><Entity Type='Hub'><Definition>"
                        "<AttributeSequence><Attribute IDRef='" +
                        longName + "3'/></AttributeSequence></Definition></Entity></Entities></Model>");
    const std::string svg = Drawn("in.xml");
    EXPECT_NE(svg.find("id=\"node6\""), std::string::npos);
    EXPECT_NE(svg.find(">" + longName.substr(0, 100) + "… #2</text>"), std::string::npos) << svg;
}

TEST_F(Graph, OfOneEntityLeavesOutWhatItDoesNotReach)
{
    fs::copy(kGraphs / "references.xml", m_directory.Path());
    const std::set<std::string> all = Lines(Run("talschema graph references.xml").out);
    const std::set<std::string> some = Lines(Run("talschema graph --only Turbine references.xml").out);
    std::set<std::string> leftOut;
    std::set_difference(all.begin(), all.end(), some.begin(), some.end(),
                        std::inserter(leftOut, leftOut.end()));
    const std::set<std::string> expected = {
        R"("entity Tower" [label="Tower"])",
        R"("file F_UNUSED" [label="Unused\nF_UNUSED"])",
        R"("group G_SIZE" [label="Size\nG_SIZE"])",
        R"("attribute " [label="\"\"", color=red, fontcolor=red, style=dashed])",
        R"("attribute A_UNUSED" [label="Unused\nA_UNUSED"])",
        R"("attribute F_GONE" [label="No file\nF_GONE"])",
        R"("group G_SIZE" -> "attribute A_TWICE")",
        R"("group G_SIZE" -> "attribute " [color=red, fontcolor=red, style=dashed])"};
    EXPECT_EQ(leftOut, expected);
    EXPECT_TRUE(std::includes(all.begin(), all.end(), some.begin(), some.end()));
}

TEST_F(Graph, NamesTheEntityThatWasMeant)
{
    Write("in.xml", "<Model><Entities><Entity Type='Turbine'/><Entity Type='Tower'/></Entities></Model>");
    const std::string start = "in.xml: error: no entity of the type ";
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"TURBINE", "\"TURBINE\"; did you mean \"Turbine\"?\n"},
        {"Twoer", "\"Twoer\"; did you mean \"Tower\"?\n"},
        {"Towing", "\"Towing\"\n"},
        {"''", "\"\"\n"}};
    for (const auto& [type, message] : cases) {
        const Result result = Run("talschema graph in.xml --only " + type);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, start + message);
    }
    for (const std::string arguments :
         {"graph", "graph missing.xml", "graph in.xml --only", "graph in.xml >/dev/full"})
        EXPECT_EQ(Run("talschema " + arguments).exitCode, 2) << arguments;
}

} // namespace
