// `talschema xsd` and what an editor that knows the schema says.
#include <string>
#include <vector>

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

TEST_F(Xsd, IsPrintedAndFoundBesideTheInstalledTool)
{
    EXPECT_EQ(Run("talschema xsd").out, FileContent(kSchema));
    EXPECT_EQ(Run("talschema xsd --path").exitCode, 2);
    const std::string shared = "copy/share/TalAttributeSchemaReader";
    const Result installed =
        Run("mkdir -p copy/bin " + shared + " && cp \"$TALSCHEMA\" copy/bin && cp '" +
            kSchema.parent_path().string() + "'/* " + shared +
            " && LD_LIBRARY_PATH=\"$(dirname \"$TALSCHEMA\")/../lib\" copy/bin/talschema xsd --path");
    const fs::path path = fs::canonical(m_directory / shared) / "attribute-schema.xsd";
    EXPECT_EQ(installed.out, path.string() + "\n") << installed.err;

    // By its name, through the catalog beside it.
    Write("in.xml", "<Model xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                    "xsi:noNamespaceSchemaLocation='urn:tal:attribute-schema'><Storag/></Model>");
    const Result byName =
        Run("XML_CATALOG_FILES=" + shared +
            "/catalog.xml xmllint --nonet --noout --schema urn:tal:attribute-schema in.xml");
    EXPECT_EQ(byName.exitCode, 3) << byName.err;
    EXPECT_NE(byName.err.find("'Storag': This element is not expected"), std::string::npos) << byName.err;
}

TEST_F(Xsd, KnowsIdentifiersAndReferences)
{
    const auto document = [](const std::string& group, const std::string& entity,
                             const std::string& attribute = "") {
        return "<Model><AttributeDefinition><Attributes><Attribute ID='A'/>" + attribute +
               "</Attributes><Files><File ID='F'/><File ID='A'/></Files><AttributeGroups>"
               "<AttributeGroup ID='A'>" +
               group +
               "</AttributeGroup></AttributeGroups></AttributeDefinition><Entities><Entity Type='A'>" +
               entity + "</Entity></Entities></Model>";
    };
    const auto rules = [](const std::string& content) {
        return "<Rules><Create>" + content + "</Create></Rules>";
    };
    const auto definition = [](const std::string& content) {
        return "<Definition>" + content + "</Definition>";
    };
    const std::string folder = "<AttributeFolder Name='a'><AttributeFolder Name='b'>";
    const std::string folderEnd = "</AttributeFolder></AttributeFolder></Condition></LoadCaseTemplates>";
    const std::string attributeSequence = "<AttributeSequence><Attribute IDRef='";
    const std::vector<std::string> cases = {
        document("<Attribute IDRef='?A'/>", ""),
        document("", definition(attributeSequence + "?A'/></AttributeSequence>")),
        document("", definition("<FileSequence><File IDRef='?F'/></FileSequence>")),
        document("", rules("<Children><Assembly AttributeIDRef='?A'/></Children>")),
        document("", rules("<LoadCaseTemplates><Condition AttributeRef='?A'/></LoadCaseTemplates>")),
        document("",
                 rules("<LoadCaseTemplates><Condition>" + folder + "<Attribute IDRef='?A'/>" + folderEnd)),
    };
    for (const std::string& with : cases) {
        std::string known = with;
        std::string unknown = with;
        known.erase(with.find('?'), 1);
        unknown.replace(with.find('?'), 1, "X_");
        EXPECT_EQ(Validated(known), "");
        EXPECT_NE(Validated(unknown).find("No match found for key-sequence ['X_"), std::string::npos)
            << unknown;
    }
    EXPECT_NE(Validated(document("", "", "<Attribute ID='A'/>")).find("Duplicate key-sequence ['A']"),
              std::string::npos);
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
