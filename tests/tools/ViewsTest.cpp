// The views of a schema: what stands in a document and is read stands in every one of them.
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <xercesc/util/PlatformUtils.hpp>

#include "tests/TestSupport.h"
#include "tests/tools/XmlElement.h"
#include "tools/talschema/diff/DiffCompare.h"
#include "tools/talschema/diff/DiffJson.h"
#include "tools/talschema/diff/DiffText.h"
#include "tools/talschema/show/SchemaJson.h"
#include "tools/talschema/show/ShowTree.h"

using nlohmann::ordered_json;

namespace {

/// Documents that use each element and each attribute of the XML Schema file, by what it says of them.
class FormatWalk
{
public:
    struct Place
    {
        std::string path;
        bool isFlag;
        bool isRead;
    };

    FormatWalk()
    {
        xercesc::XMLPlatformUtils::Initialize();
        m_format = Parse(std::filesystem::path(PROJECT_ROOT) / "schema/attribute-schema.xsd").value();
        xercesc::XMLPlatformUtils::Terminate();
        for (const Element& declaration : m_format.children) {
            if (declaration.attributes.count("name") > 0)
                m_declarations[declaration.attributes.at("name")] = &declaration;
        }
    }

    static std::string Marker(std::size_t place) { return "m" + std::to_string(place) + "m"; }
    static std::string OtherMarker(std::size_t place) { return "o" + std::to_string(place) + "o"; }

    /// Every attribute holds its marker, a flag No; but the one at `changed` holds the other marker or Yes.
    std::string Document(std::size_t changed = SIZE_MAX)
    {
        m_changed = changed;
        m_places.clear();
        return ToText(Instance(*m_declarations.at("Model"), "", true));
    }

    /// The attributes of the last document, in its order.
    const std::vector<Place>& Places() const { return m_places; }

private:
    Element Instance(const Element& declaration, const std::string& parent, bool isRead)
    {
        Element element{declaration.attributes.at("name"), {}, {}};
        const std::string path = parent + "/" + element.name;
        const std::string typeName = declaration.attributes.at("type");
        if (++m_depth[typeName] <= 2) { // types that hold themselves
            const Element& type = *m_declarations.at(typeName);
            for (const Element& part : type.children)
                AddPart(element, part, path, isRead, type.attributes.count("tal:contentNotWritten") == 0);
        }
        --m_depth[typeName];
        return element;
    }

    void AddPart(Element& element, const Element& part, const std::string& path, bool isRead,
                 bool isContentRead)
    {
        if (part.name == "xs:attribute") {
            const std::string name = part.attributes.at("name");
            const auto type = m_declarations.find(part.attributes.at("type"));
            const bool isFlag =
                type != m_declarations.end() && type->second->attributes.count("tal:flag") > 0;
            const std::size_t place = m_places.size();
            const bool isChanged = place == m_changed;
            element.attributes[name] = isFlag      ? (isChanged ? "Yes" : "No")
                                       : isChanged ? OtherMarker(place)
                                                   : Marker(place);
            m_places.push_back(
                {path + "@" + name, isFlag, isRead && part.attributes.count("tal:notRead") == 0});
        } else if (part.name == "xs:simpleContent" || part.name == "xs:extension") {
            for (const Element& child : part.children)
                AddPart(element, child, path, isRead, isContentRead);
        } else if (part.name == "xs:choice") {
            for (const Element& child : part.children)
                element.children.push_back(Instance(child, path, isRead && isContentRead));
        }
    }

    Element m_format;
    std::map<std::string, const Element*> m_declarations;
    std::map<std::string, int> m_depth;
    std::size_t m_changed = SIZE_MAX;
    std::vector<Place> m_places;
};

/// A schema in its views, and the views of what differs from another.
struct Views
{
    explicit Views(const std::string& document)
        : json(SchemaToJson(*ReadSchemaText(document))), tree(SchemaAsTree(json, "", false))
    {
    }

    std::map<std::string, std::string> After(const Views& before) const
    {
        const std::vector<Difference> differences = CompareSchemas(before.json, json);
        return {{"tree", tree},
                {"JSON", json.dump()},
                {"differences", DifferencesAsText(differences, false)},
                {"differences in JSON", DifferencesAsJson(differences, before.json).dump()}};
    }

    ordered_json json;
    std::string tree;
};

TEST(Views, HoldEveryAttributeThatIsReadAndNoOther)
{
    FormatWalk walk;
    const Views base(walk.Document());
    const std::vector<FormatWalk::Place> places = walk.Places();
    const auto nothing = base.After(base);
    std::map<bool, int> count;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const FormatWalk::Place& place = places[i];
        ++count[place.isRead];
        for (const auto& [view, text] : Views(walk.Document(i)).After(base)) {
            SCOPED_TRACE(place.path + " in the " + view);
            EXPECT_EQ(text != nothing.at(view), place.isRead);
            if (!place.isFlag) {
                EXPECT_EQ(text.find(FormatWalk::OtherMarker(i)) != std::string::npos, place.isRead);
            }
        }
    }
    EXPECT_GT(count[true], 50);
    EXPECT_GT(count[false], 3);
}

TEST(Views, ShowKeysThatTheTreeHasNoTitleFor)
{
    ordered_json schema = SchemaToJson(*ReadSchemaText(
        "<Model><AttributeDefinition><Attributes><Attribute ID='A_HUB'><DataGenerator><Type Name='Python'/>"
        "</DataGenerator></Attribute></Attributes></AttributeDefinition></Model>"));
    ordered_json& attribute = schema["attributes"][0];
    attribute["unit"] = "K";
    attribute["comment"] = "";
    attribute["hidden"] = false;
    attribute["nothing"] = nullptr;
    attribute["aliases"] = {"Hub", ""};
    attribute["dataGenerator"]["timeout"] = 30;
    attribute["dataGenerator"]["limits"] = {{"upper", "9"}};
    schema["materials"] = {{{"name", "Steel"}, {"grades", {{{"name", "S235"}}}}}, {{"name", "Oak"}}};
    schema["release"] = "7\n";
    EXPECT_EQ(SchemaAsTree(schema, "in.xml", false), R"(in.xml
├─ Storage           0
├─ Attributes        1
├─ Files             0
├─ Attribute groups  0
├─ Entities          0
├─ materials         2
└─ release           1

Attributes
│  ID
└─ A_HUB
   ├─ generator  Python
   │  ├─ timeout  30
   │  └─ limits
   │     └─ upper  9
   ├─ unit       K
   ├─ comment    ""
   ├─ hidden     no
   └─ aliases    Hub, ""

materials
├─ 1
│  ├─ name    Steel
│  └─ grades
│     └─ 1
│        └─ name  S235
└─ 2
   └─ name  Oak

release  7\n
)");
}

TEST(Views, CompareListsThatHaveNoIdentityByWholeValues)
{
    const ordered_json before = {
        {"materials", {{{"name", "Steel"}, {"grade", "S235"}}, {{"name", "Oak"}}, 7, {}}}};
    const ordered_json after = {
        {"materials", {{{"name", "Oak"}}, {{"name", "Steel"}, {"grade", "S355"}}, {}, 8}}};
    EXPECT_EQ(DifferencesAsText(CompareSchemas(before, after), false), R"(Materials: 2 added, 2 removed
  - "Steel" (Grade: "S235")
  - "7"
  + "Steel" (Grade: "S355")
  + "8"
)");
    EXPECT_TRUE(CompareSchemas(before, before).empty());
}

} // namespace
