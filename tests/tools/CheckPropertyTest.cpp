// `talschema check` finds nothing skipped or lost exactly when reading and rewriting keep every element and
// attribute.
//
// They are kept when the rewritten document holds each of them at the same place of the tree: each element in
// a partner of its own that has the same name and that stands in the partner of its parent, in the same order
// among the siblings of its name; each attribute with the same value, where the value of a flag is what the
// reader takes it for. What a document type gives by default and what comes out of an entity counts as part
// of the document; elements out of an entity are never read, so their like in the rewritten document is not
// theirs. Of a document that is not read, nothing is kept.
#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "tests/tools/Mutator.h"
#include "tests/tools/RepositoryDocuments.h"
#include "tests/tools/ToolProcess.h"
#include "tests/tools/XmlElement.h"

using xercesc::XMLPlatformUtils;
namespace fs = std::filesystem;

namespace {

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

bool SameValue(const std::string& name, const std::string& before, const std::string& after)
{
    if (name == "Displayable" || name == "Editable")
        return (before == "Yes") == (after == "Yes");
    if (name == "OnChangeCreateVersion" || name == "UseInComparison")
        return (Lower(before) == "yes") == (after == "Yes");
    return before == after;
}

bool Keeps(const Element& before, const Element& after)
{
    if (before.outOfEntity || before.name != after.name)
        return false;
    for (const auto& [name, value] : before.attributes) {
        const auto kept = after.attributes.find(name);
        if (kept == after.attributes.end() || !SameValue(name, value, kept->second))
            return false;
    }
    std::map<std::string, std::vector<const Element*>> partners;
    for (const Element& child : after.children)
        partners[child.name].push_back(&child);
    std::map<std::string, std::size_t> used;
    return std::all_of(before.children.begin(), before.children.end(), [&](const Element& child) {
        const std::size_t number = used[child.name]++;
        return number < partners[child.name].size() && Keeps(child, *partners[child.name][number]);
    });
}

bool IsKept(const fs::path& file, const fs::path& rewritten)
{
    const auto before = Parse(file);
    if (!before)
        return false;
    WriteStorageTalAttributeSchema(rewritten.c_str(), ReadSchema(file).get(), nullptr);
    const auto after = Parse(rewritten);
    return after && Keeps(*before, *after);
}

class CheckProperty : public Talschema
{
protected:
    CheckProperty() { XMLPlatformUtils::Initialize(); }
    ~CheckProperty() override { XMLPlatformUtils::Terminate(); }

    /// The identifiers of what is skipped, lost or unreadable, by file.
    std::map<std::string, std::set<std::string>> LossesIn(const std::string& files) const
    {
        const Result result = Run("talschema check --format json -- " + files);
        const auto report = nlohmann::json::parse(result.out);
        std::map<std::string, std::set<std::string>> losses;
        for (const auto& finding : report.at("findings")) {
            const std::string kind = finding.at("kind");
            if (kind == "skipped" || kind == "lost" || kind == "unreadable")
                losses[finding.at("file")].insert(finding.at("identifier").get<std::string>());
        }
        return losses;
    }

    fs::path Rewritten() const { return m_directory / "rewritten.out"; }
};

TEST_F(CheckProperty, HoldsForAllDocumentsOfTheRepository)
{
    std::string files;
    for (const fs::path& document : DocumentsOfTheRepository())
        files += " '" + document.string() + "'";
    const auto losses = LossesIn(files);
    int kept = 0;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        const auto found = losses.find(document.string());
        EXPECT_EQ(IsKept(document, Rewritten()), found == losses.end())
            << document << (found == losses.end() ? "" : ": " + *found->second.begin());
        kept += found == losses.end();
    }
    EXPECT_GT(kept, 20);
    EXPECT_GT(losses.size(), 20U);
}

TEST_F(CheckProperty, HoldsForMutatedDocuments)
{
    std::vector<Element> originals;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        // What is lost already hides what a mutation loses; and the depth limit has a document of its own.
        if (fs::file_size(document) < 20'000 && IsKept(document, Rewritten()))
            originals.push_back(*Parse(document));
    }
    const unsigned rounds = Mutations();
    for (unsigned seed = 0; seed < rounds; ++seed) {
        Element root = originals[seed % originals.size()];
        Mutator(root, seed).Mutate();
        Write(std::to_string(seed) + ".xml", "<?xml version='1.1'?>\n" + ToText(root));
    }
    const auto losses = LossesIn("*.xml");
    std::map<bool, int> count;
    for (unsigned seed = 0; seed < rounds; ++seed) {
        const std::string name = std::to_string(seed) + ".xml";
        const auto found = losses.find(name);
        const bool kept = IsKept(m_directory / name, Rewritten());
        ++count[kept];
        ASSERT_EQ(kept, found == losses.end())
            << "seed " << seed << (found == losses.end() ? "" : ": " + *found->second.begin()) << "\n"
            << Content(name) << "\n"
            << FileContent(Rewritten());
    }
    EXPECT_GT(count[true], 20);
    EXPECT_GT(count[false], 20);
    RecordProperty("kept", count[true]);
}

} // namespace
