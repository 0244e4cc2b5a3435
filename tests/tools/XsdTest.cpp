// `talschema xsd` and what an editor that knows the schema says.
#include <regex>
#include <set>
#include <string>

#include "tests/tools/ToolProcess.h"

namespace fs = std::filesystem;

namespace {

const fs::path kSchema = fs::path(PROJECT_ROOT) / "schema/attribute-schema.xsd";

class Xsd : public Talschema
{
protected:
    void SetUp() override
    {
        if (ToolIsForWindows())
            GTEST_SKIP() << "the validator is of this system";
    }

    std::string Validated(const std::string& document) const
    {
        Write("in.xml", document);
        const Result result = Run("xmllint --noout --schema '" + kSchema.string() + "' in.xml");
        return result.exitCode == 0 ? "" : result.err;
    }
};

TEST_F(Xsd, IsPrinted)
{
    EXPECT_EQ(Run("talschema xsd").out, FileContent(kSchema));
    EXPECT_EQ(Run("talschema xsd --path").exitCode, 2); // not installed; Recipes.ForAShellRun installs it
}

TEST_F(Xsd, KnowsIdentifiersAndReferences)
{
    const auto lines = [](const std::string& text, const char* fault) {
        std::set<std::string> numbers;
        const std::regex line(std::string("\\.xml:(\\d+):.*") + fault);
        for (std::sregex_iterator found(text.begin(), text.end(), line), end; found != end; ++found)
            numbers.insert((*found)[1]);
        return numbers;
    };
    for (const std::string name : {"findings/references.xml", "../documents/folder-depth.out.xml"}) {
        const std::string document = " '" PROJECT_ROOT "/tests/tools/" + name + "'";
        const auto expected = lines(Run("talschema check --no-source" + document).out,
                                    "\\[(unknown-reference|duplicate-id|duplicate-type)\\]");
        EXPECT_GT(expected.size(), 3U);
        EXPECT_EQ(lines(Run("xmllint --noout --huge --schema '" + kSchema.string() + "'" + document).err,
                        " key-sequence \\['[^']"), // to the reader, an empty one is as good as absent
                  expected);
    }
}

TEST_F(Xsd, IsNotTakenWithWhatTheCheckerWouldNotKnow)
{
    const std::string schema = FileContent(kSchema);
    const auto made = [&](const std::string& from, const std::string& to) {
        std::string changed = schema;
        EXPECT_NE(changed.find(from), std::string::npos) << from;
        changed.replace(changed.find(from), from.size(), to);
        Write("changed.xsd", changed);
        return Run("'" FORMAT_TABLE_PATH "' changed.xsd table.cpp").exitCode == 0;
    };
    EXPECT_TRUE(made("Model", "Model"));
    EXPECT_FALSE(made("type=\"EntityEntry\" tal:list=", "type=\"EntityEntry\" tal:lists="));
    EXPECT_FALSE(made("<xs:choice", "<xs:group/><xs:choice"));
    EXPECT_FALSE(
        made("<xs:unique name=\"attribute\">", "<xs:key name=\"attribute\"/><xs:unique name=\"attribute\">"));
    EXPECT_FALSE(made("AttributeDefinition/Files/File\"", "AttributeDefinition/Filles/File\""));
    EXPECT_FALSE(made(" | .//AttributeFolder/Attribute", " | AttributeDefinition/Attributes/Attribute"));
    EXPECT_FALSE(made("tal:defines=\"group\"", ""));
    EXPECT_FALSE(made("xpath=\"@AttributeRef\"", "xpath=\"@Value\""));
    EXPECT_FALSE(made("base=\"WhiteSpace\"", "base=\"xs:string\""));
}

TEST_F(Xsd, AllowsWhiteSpaceWhereTheReaderDoes)
{
    EXPECT_EQ(Validated("<Model><Storage><StorageType Value='a'>\n \t</StorageType></Storage></Model>"), "");
    EXPECT_EQ(
        Validated("<Model><Storage><StorageType Value='a'> <!-- b --> </StorageType></Storage></Model>"), "");
    EXPECT_NE(Validated("<Model><Storage><StorageType Value='a'>b</StorageType></Storage></Model>"), "");
    EXPECT_NE(Validated("<Model><Storage><StorageType><Fan/></StorageType></Storage></Model>"), "");
}

} // namespace
