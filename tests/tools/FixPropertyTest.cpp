// What `check --fix` does to mutated documents: it says all that it does, takes nothing away, and has nothing
// left to do.
#include <map>
#include <set>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <xercesc/util/PlatformUtils.hpp>

#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"
#include "tests/TestSupport.h"
#include "tests/tools/Mutator.h"
#include "tests/tools/RepositoryDocuments.h"
#include "tools/talschema/show/SchemaJson.h"

using nlohmann::ordered_json;
using xercesc::XMLPlatformUtils;
namespace fs = std::filesystem;

namespace {

/// What was put in the place of what, and how often.
using Changes = std::map<std::pair<std::string, std::string>, int>;

/// True when everything is still there, in its order: an entry of a list may have new neighbours, an empty
/// text may be filled and a No may become a Yes.
bool Keeps(const ordered_json& before, const ordered_json& after)
{
    if (before.is_null() || before == "" || before == false || before == after)
        return true;
    if (before.is_object() && after.is_object()) {
        for (const auto& [key, value] : before.items()) {
            if (!Keeps(value, after.at(key)))
                return false;
        }
        return true;
    }
    if (!before.is_array() || !after.is_array())
        return false;
    auto partner = after.begin();
    for (const ordered_json& value : before) {
        while (partner != after.end() && !Keeps(value, *partner))
            ++partner;
        if (partner == after.end())
            return false;
        ++partner;
    }
    return true;
}

/// What of an element and all in it is another name or another value, when nothing else differs.
bool Compare(const Element& before, const Element& after, Changes& changes)
{
    if (before.children.size() != after.children.size() ||
        before.attributes.size() != after.attributes.size())
        return false;
    if (before.name != after.name)
        ++changes[{before.name, after.name}];
    std::set<std::string> renamed;
    for (const auto& [name, value] : after.attributes) {
        const auto old = before.attributes.find(name);
        if (old == before.attributes.end())
            renamed.insert(name);
        else if (old->second != value)
            ++changes[{old->second, value}];
    }
    for (const auto& [name, value] : before.attributes) {
        if (after.attributes.count(name) > 0)
            continue;
        // The fixes say which one it became; here it is enough that it is one with this value, or one that
        // says Yes.
        for (auto candidate = renamed.begin();; ++candidate) {
            if (candidate == renamed.end())
                return false;
            const std::string& now = after.attributes.at(*candidate);
            if (now != value && now != "Yes" && now != "No")
                continue;
            const std::string near = tal::NearestName(name, {*candidate});
            if (near.empty())
                continue;
            if (now != value)
                ++changes[{value, now}];
            ++changes[{name, *candidate}];
            renamed.erase(candidate);
            break;
        }
    }
    for (std::size_t i = 0; i < before.children.size(); ++i) {
        if (!Compare(before.children[i], after.children[i], changes))
            return false;
    }
    return true;
}

Changes ChangesOf(const std::vector<tal::Finding>& fixed)
{
    Changes changes;
    for (const tal::Finding& finding : fixed)
        ++changes[{finding.subject, finding.suggestion}];
    return changes;
}

/// Everything but what stands in tags.
std::string WithoutTags(const std::string& text)
{
    std::string rest;
    bool inTag = false;
    for (const char character : text) {
        inTag = inTag ? character != '>' : character == '<';
        if (!inTag || character == '<')
            rest += character;
    }
    return rest;
}

class FixProperty : public testing::Test
{
protected:
    FixProperty() { XMLPlatformUtils::Initialize(); }
    ~FixProperty() override { XMLPlatformUtils::Terminate(); }

    fs::path Written(const char* name, const std::string& text) const
    {
        WriteFile(m_folder / name, text);
        return m_folder / name;
    }

    ordered_json Model(const std::string& text) const
    {
        return SchemaToJson(*tal::LoadSchema(Written("model.xml", text), {false, false}).schema);
    }

    const TemporaryDirectory m_folder;
};

TEST_F(FixProperty, HoldsForMutatedDocuments)
{
    std::vector<Element> originals;
    for (const fs::path& document : DocumentsOfTheRepository()) {
        auto root = fs::file_size(document) < 20'000 ? Parse(document) : std::nullopt;
        if (root && tal::LoadSchema(document))
            originals.push_back(std::move(*root));
    }
    ASSERT_GT(originals.size(), 30U);
    std::size_t fixed = 0;
    std::size_t left = 0;
    for (unsigned seed = 0; seed < Mutations(); ++seed) {
        Element root = originals[seed % originals.size()];
        Mutator mutator(root, seed);
        for (unsigned more = 0; more <= seed % 8; ++more) // faults that meet each other
            mutator.Mutate();
        const std::string text = "<?xml version='1.1'?>\r\n<!-- yes -->" + ToText(root);
        SCOPED_TRACE("seed " + std::to_string(seed) + "\n" + text);

        const tal::FixResult once = tal::FixText(text, "document.xml");
        ASSERT_EQ(once.error, "");
        ASSERT_EQ(once.fixed.empty(), once.text == text);
        ASSERT_EQ(WithoutTags(once.text), WithoutTags(text));
        const tal::FixResult twice = tal::FixText(once.text, "document.xml");
        ASSERT_EQ(twice.text, once.text);
        ASSERT_TRUE(twice.fixed.empty());

        const auto before = Parse(Written("before.xml", text));
        if (!before) { // a name that no XML has: nothing was read, and nothing was fixed
            ASSERT_EQ(once.text, text);
            continue;
        }
        Changes changes;
        ASSERT_TRUE(Compare(*before, *Parse(Written("after.xml", once.text)), changes)) << once.text;
        ASSERT_EQ(changes, ChangesOf(once.fixed)) << once.text;
        ASSERT_TRUE(Keeps(Model(text), Model(once.text))) << once.text;
        fixed += once.fixed.size();
        left += once.check.findings.size();
    }
    EXPECT_GT(fixed, Mutations() / 4);
    RecordProperty("fixed", static_cast<int>(fixed));
    RecordProperty("left", static_cast<int>(left));
}

} // namespace
