// Loading, checking and saving as a host meets them.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"
#include "TalAttributeSchemaReader/TalAttributeSchemaReader.h"
#include "tests/TestPlatform.h"
#include "tests/TestSupport.h"
#include "tests/tools/RepositoryDocuments.h"

namespace fs = std::filesystem;

namespace {

const std::string kSmall = "<Model><Entities><Entity Type='Fan'/></Entities></Model>";

std::vector<std::string> NamesIn(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

class Host : public testing::Test
{
protected:
    /// The host library and the exports say the same about the document.
    void ExpectAgreement(const fs::path& document) const
    {
        SCOPED_TRACE(document);
        const tal::LoadResult loaded = tal::LoadSchema(document, {true, false});
        tal::CheckOptions options;
        options.allowExternal = true;
        options.suppressions = false; // which a load does not know
        const tal::CheckResult checked = tal::CheckDocument(document, options);
        const std::unique_ptr<CDASchema> read = ReadSchema(document);
        EXPECT_EQ(loaded.read, !tal::IsUnreadable(checked.findings));
        EXPECT_EQ(loaded.read, !tal::IsUnreadable(loaded.findings));
        const tal::LoadResult text = tal::LoadText(FileContent(document), document.u8string(), {true, true});
        EXPECT_EQ(text.read, loaded.read);
        EXPECT_EQ(text.findings.size(), checked.findings.size());
        ASSERT_TRUE(loaded.schema);

        WriteStorageTalAttributeSchema((m_folder / "written.xml").c_str(), read.get(), nullptr);
        for (const bool readAgain : {true, false}) {
            tal::SaveOptions saveOptions;
            saveOptions.flush = false;
            saveOptions.readAgain = readAgain;
            const tal::SaveResult saved =
                tal::SaveSchema(m_folder / "saved.xml", *loaded.schema, saveOptions);
            EXPECT_TRUE(saved) << saved.error;
            EXPECT_EQ(FileContent(m_folder / "saved.xml"), FileContent(m_folder / "written.xml"));
        }
    }

    void AgreesOn(const char* document) const { ExpectAgreement(fs::path(PROJECT_ROOT) / document); }

    const TemporaryDirectory m_folder;
};

TEST_F(Host, AgreesWithTheExportsOnEveryDocument)
{
    for (const fs::path& document : DocumentsOfTheRepository())
        ExpectAgreement(document);
}

TEST_F(Host, TakesSuppressionsThatNobodyWantsForComments)
{
    const auto said = [](const std::vector<tal::Finding>& findings) {
        std::string text;
        for (const tal::Finding& finding : findings)
            text += std::string(tal::RuleOf(finding.id).identifier) + ' ' +
                    std::to_string(finding.range.begin.offset) + ' ' +
                    std::to_string(finding.consequences.size()) + '\n';
        return text;
    };
    tal::CheckOptions options;
    options.suppressions = false;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        const std::string bytes = FileContent(document);
        std::string comments = bytes;
        for (std::size_t at = 0; (at = comments.find("talschema-", at)) != std::string::npos;)
            comments.replace(at, 10, "talschema=");
        EXPECT_EQ(said(tal::CheckText(bytes, document.u8string(), options).findings),
                  said(tal::CheckText(comments, document.u8string()).findings))
            << document;
    }
}

TEST_F(Host, AgreesWithTheExportsOnDamagedDocuments)
{
    const std::string original =
        FileContent(fs::path(PROJECT_ROOT) / "tests/tools/findings/entities-of-xml.xml") +
        FileContent(fs::path(PROJECT_ROOT) / "examples/bracket.xml");
    std::uint32_t random = 1;
    const auto next = [&](std::size_t limit) {
        random = random * 1664525 + 1013904223;
        return static_cast<std::size_t>(random >> 8) % limit;
    };
    const std::string letters = "<>&\"'=/!?; \n\xE4\xC3\x80\x01" + std::string("aM-[]%#x1");
    const char* const rounds = std::getenv("TALSCHEMA_MUTATIONS");
    for (int round = 0; round < (rounds ? std::stoi(rounds) : 200); ++round) {
        std::string document = original.substr(round % 2 == 0 ? original.find("<?xml") : 0);
        for (std::size_t changes = 1 + next(2); changes > 0; --changes)
            document[next(document.size())] = letters[next(letters.size())];
        WriteFile(m_folder / "damaged.xml", document);
        ExpectAgreement(m_folder / "damaged.xml");
    }
}

TEST_F(Host, AgreesWithTheExportsOnWhatOnlyOneDomCouldRefuseOrReorder)
{
    std::string attributes;
    for (int i = 0; i < 40; ++i)
        attributes += " a" + std::to_string(i * 7 % 40) + "='" + std::to_string(i) + "'";
    const std::string folders =
        Repeated("<AttributeFolder Name='f'>", 1'005) + Repeated("</AttributeFolder>", 1'005);
    const std::string definition = "<AttributeDefinition><Attributes><Attribute ID='A' Name='n'" +
                                   attributes + "/></Attributes></AttributeDefinition>";
    const std::string condition = "<Entities><Entity Type='Iteration'><Rules><Create><LoadCaseTemplates>"
                                  "<Condition AttributeRef='A'>" +
                                  folders +
                                  "</Condition></LoadCaseTemplates></Create></Rules></Entity></Entities>";
    const std::string anything = "[<!ELEMENT Model ANY><!ELEMENT Storage ANY><!ELEMENT StorageType EMPTY>"
                                 "<!ATTLIST StorageType Value CDATA 'by default' zone CDATA 'z'>"
                                 "<!ENTITY part '<Storage><StorageType/></Storage>'>]>";
    int number = 0;
    for (const std::string& document :
         {"<?xml version='1.2'?>" + kSmall, "<?xml version='1.1'?>" + kSmall, "<!DOCTYPE a:b:c>" + kSmall,
          "<!DOCTYPE a:1>" + kSmall, "<!DOCTYPE a:b [<!ELEMENT x ANY>]>" + kSmall,
          "<?xml version='1.1'?><!DOCTYPE a:\u2070 []>" + kSmall, "<!DOCTYPE Model " + anything + "<Model/>",
          "<!DOCTYPE Model " + anything + "<Model><Storage><StorageType/></Storage></Model>",
          "<!DOCTYPE Model " + anything +
              "<Model>&part;<Storage><StorageType Value='x'/>&part;</Storage></Model>",
          "<Model>" + definition + "</Model>", "<Model>" + condition + "</Model>"}) {
        const fs::path file = m_folder / (std::to_string(++number) + ".xml");
        WriteFile(file, document);
        ExpectAgreement(file);
    }
}

TEST_F(Host, WorksTheSameWhileTheXmlLibraryIsHeld)
{
    const tal::XmlSession session;
    ASSERT_TRUE(session);
    AgreesOn("examples/bracket.xml");
    const tal::XmlSession another;
    AgreesOn("examples/wind-turbine.xml");
}

TEST_F(Host, SaysWhyNothingWasRead)
{
    WriteFile(m_folder / "broken.xml", "<Model>");
    WriteFile(m_folder / "root.xml", "<model/>");
    WriteFile(m_folder / "empty.xml", "<Model/>");
    const std::map<std::string, tal::FindingId> reasons = {{"broken.xml", tal::FindingId::NotWellFormed},
                                                           {"root.xml", tal::FindingId::WrongRoot},
                                                           {"gone.xml", tal::FindingId::UnreadableFile},
                                                           {".", tal::FindingId::UnreadableFile}};
    for (const auto& [name, reason] : reasons) {
        for (const bool check : {true, false}) {
            const tal::LoadResult result = tal::LoadSchema(m_folder / name, {false, check});
            EXPECT_FALSE(result) << name;
            ASSERT_EQ(result.findings.size(), 1U) << name;
            EXPECT_EQ(result.findings[0].id, reason) << name;
            EXPECT_EQ(result.findings[0].file, (m_folder / name).string());
            EXPECT_EQ(WriteSchemaText(result.schema.get()), kEmptySchemaText);
        }
    }
    EXPECT_TRUE(tal::LoadSchema(m_folder / "empty.xml"));
}

TEST_F(Host, GivesFactsAsTheDocumentHasThem)
{
    const std::string value(100, 'x');
    const std::string bytes =
        "<Model><Storage><Ausf\u00fchrung/></Storage><AttributeDefinition><Attributes>\n"
        "<Attribute Editable='YES'/><Attribute Editable='\u202E" +
        value + "'/></Attributes></AttributeDefinition></Model>";
    std::ifstream nothing;
    EXPECT_TRUE(tal::IsUnreadable(tal::CheckStream(nothing, "nothing.xml").findings));
    std::istringstream stream("\n" + bytes);
    const std::vector<tal::Finding> findings = tal::CheckStream(stream, "in.xml").findings;
    ASSERT_EQ(findings.size(), 3U);
    EXPECT_EQ(findings[0].subject, "Ausf\u00fchrung");
    EXPECT_EQ(findings[0].path, "/Model/Storage/Ausf\u00fchrung");
    EXPECT_EQ(findings[1].suggestion, "Yes");
    EXPECT_EQ(findings[2].subject, "\u202E" + value);
    EXPECT_EQ(findings[2].suggestion, "");
    EXPECT_EQ(findings[2].severity, tal::Severity::Warning);
    for (const tal::Finding& finding : findings) {
        for (const tal::Finding::Value& named : finding.values) {
            EXPECT_EQ(finding.message[named.begin - 1], '"');
            EXPECT_EQ(finding.message[named.begin + named.length], '"');
        }
    }
    ASSERT_EQ(findings[2].values.size(), 2U);
    EXPECT_EQ(findings[2].message.substr(findings[2].values[0].begin, findings[2].values[0].length),
              findings[2].subject);
}

TEST_F(Host, ReadsNothingOutsideOfTheFolderUnlessAskedTo)
{
    fs::create_directories(m_folder / "schemas/parts");
    WriteFile(m_folder / "secret.txt", "secret");
    WriteFile(m_folder / "schemas/parts/name.txt", "inside");
    if (kHasLinks)
        fs::create_symlink("../../secret.txt", m_folder / "schemas/parts/link.txt");
    const fs::path secret = m_folder / "secret.txt";
    const auto load = [&](const std::string& target, bool allow) {
        WriteFile(m_folder / "schemas/in.xml",
                  "<!DOCTYPE Model [<!ELEMENT Model ANY><!ELEMENT Storage ANY><!ELEMENT StorageType EMPTY>\n"
                  "<!ATTLIST StorageType Value CDATA #REQUIRED><!ENTITY part SYSTEM '" +
                      target + "'>]>\n<Model>&part;</Model>");
        return tal::LoadSchema(m_folder / "schemas/in.xml", {allow, true});
    };
    EXPECT_TRUE(load("parts/name.txt", false));
    EXPECT_TRUE(load(FileUri(m_folder / "schemas/parts/name.txt"), false));
    for (const std::string& target :
         {std::string("../secret.txt"), secret.u8string(), FileUri(secret),
          std::string(kHasLinks ? "parts/link.txt" : "parts/../../secret.txt"), std::string("/dev/zero"),
          std::string("parts"), std::string("http://localhost:1/x"), std::string("file://elsewhere/x"),
          std::string("ftp://localhost/x"), std::string("//localhost/x")}) {
        const tal::LoadResult refused = load(target, false);
        EXPECT_FALSE(refused) << target;
        ASSERT_FALSE(refused.findings.empty());
        const tal::Finding& finding = refused.findings.back();
        EXPECT_EQ(finding.subject, target);
        EXPECT_TRUE(finding.id == tal::FindingId::OutsideFolder ||
                    refused.findings.front().id == tal::FindingId::OutsideFolder)
            << target;
    }
    EXPECT_TRUE(load("../secret.txt", true));
}

TEST_F(Host, ReadsNothingThatExpandsTooFar)
{
    const std::string start = "<!DOCTYPE Model [<!ELEMENT Model ANY><!ATTLIST Model Value CDATA #IMPLIED>";
    const std::string entity = start + "<!ENTITY e '" + Repeated("x", 20'000) + "'>";
    for (const std::string& document :
         {start + "<!ENTITY % p '<!-- -->'>" + Repeated("%p;", 50'001) + "]><Model/>",
          entity + "]><Model Value='" + Repeated("&e;", 10'000) + "'/>",
          entity + "]><Model>" + Repeated("&e;", 10'000) + "</Model>",
          start + "<!ELEMENT Storage EMPTY><!ATTLIST Storage Value CDATA '" + Repeated("x", 20'000) +
              "'>]><Model>" + Repeated("<Storage/>", 10'000) + "</Model>"}) {
        WriteFile(m_folder / "hostile.xml", document);
        ExpectAgreement(m_folder / "hostile.xml");
        const std::vector<tal::Finding> findings =
            tal::LoadSchema(m_folder / "hostile.xml", {false, false}).findings;
        EXPECT_TRUE(std::any_of(findings.begin(), findings.end(), [](const tal::Finding& finding) {
            return finding.id == tal::FindingId::Expansion;
        })) << document.substr(0, 200);
    }
    // As much in an honest way is read.
    WriteFile(m_folder / "long.xml", "<Model Value='" + Repeated("x", 5'000'000) + "'/>");
    EXPECT_TRUE(tal::LoadSchema(m_folder / "long.xml"));
}

TEST_F(Host, KeepsNoMoreFindingsThanAskedForButTheFirstErrorOfEachKind)
{
    const std::string start = "<Model><A/><B/><C/><Storage X='1'/>";
    const std::string reference =
        "<Entities><Entity Type='A'><Definition><AttributeSequence>"
        "<Attribute IDRef='gone'/></AttributeSequence></Definition></Entity></Entities>";
    const auto check = [&](const std::string& document, std::size_t most) {
        WriteFile(m_folder / "in.xml", document);
        tal::CheckOptions options;
        options.maxFindings = most;
        tal::LoadOptions loadOptions;
        loadOptions.maxFindings = most;
        const tal::CheckResult checked = tal::CheckDocument(m_folder / "in.xml", options);
        const tal::LoadResult loaded = tal::LoadSchema(m_folder / "in.xml", loadOptions);
        EXPECT_EQ(loaded.read, !tal::IsUnreadable(checked.findings));
        EXPECT_EQ(loaded.findings.size(), checked.findings.size());
        EXPECT_EQ(loaded.omitted, checked.omitted);
        return checked;
    };
    using Omitted = std::map<tal::FindingId, std::size_t>;
    EXPECT_TRUE(check(start + reference + "</Model>", 5).omitted.empty());
    EXPECT_EQ(check(start + reference + "</Model>", 2).omitted,
              (Omitted{{tal::FindingId::UnknownElement, 1},
                       {tal::FindingId::UnknownAttribute, 1},
                       {tal::FindingId::UnknownReference, 1}}));
    const tal::CheckResult broken = check(start + "</X>", 0);
    ASSERT_EQ(broken.findings.size(), 1U);
    EXPECT_EQ(broken.findings[0].id, tal::FindingId::NotWellFormed);
    EXPECT_EQ(broken.omitted.at(tal::FindingId::UnknownElement), 3U);
    const tal::CheckResult invalid =
        check("<!DOCTYPE Model [<!ELEMENT Model EMPTY>]>\n<Model><A/><B/><C/><D/></Model>", 1);
    EXPECT_EQ(invalid.findings.size(), 1U);
    EXPECT_GE(invalid.omitted.at(tal::FindingId::NotValid), 4U);
}

TEST_F(Host, LeavesTheFileAloneWhenItCannotSave)
{
    CDASchema schema;
    fs::create_directory(m_folder / "folder");
    EXPECT_EQ(tal::SaveSchema(m_folder / "folder", schema).error, "Is a directory");
    EXPECT_EQ(tal::SaveSchema(m_folder / "gone/out.xml", schema).error,
              tal::LoadSchema(m_folder / "gone/out.xml").findings.at(0).message);
    EXPECT_EQ(tal::SaveSchema(kNullDevice, schema).error, "not a regular file");
    EXPECT_EQ(NamesIn(m_folder.Path()), std::vector<std::string>{"folder"});
}

TEST_F(Host, TakesAnyFileName)
{
    const fs::path file = m_folder.Path() / fs::u8path(kOddCharacters);
    WriteFile(file, kSmall);
    tal::LoadResult result = tal::LoadSchema(file);
    ASSERT_TRUE(result);
    EXPECT_TRUE(tal::SaveSchema(file, *result.schema));
    EXPECT_NE(FileContent(file).find("\"Fan\""), std::string::npos);
}

TEST(Utf8, GoesThereAndBack)
{
    const std::string text = "a\u00e9\u98a8\U0001F300\n";
    EXPECT_EQ(tal::ToUtf8(tal::FromUtf8(text)), text);
    EXPECT_EQ(tal::ToUtf8(tal::FromUtf8("a\xFFz\xE2\x80")), "a\uFFFDz\uFFFD\uFFFD");
    EXPECT_EQ(tal::ToUtf8(GuString(u"\xD83Cx")), "\uFFFDx");
}

} // namespace
