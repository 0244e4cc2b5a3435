#include "tools/talschema/diff/DiffRenames.h"

#include <set>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

using nlohmann::ordered_json;

namespace {

struct Section
{
    const char* name;
    const char* identifier;            // the key
    const char* references;            // the key of the lists that refer to its objects, or null
    std::set<std::string> singleNames; // the keys that do so, one at a time
};

const std::vector<Section>& Sections()
{
    static const std::vector<Section> sections = {
        {"attributes", "id", "attributeReferences", {"conditionName"}},
        {"files", "id", "fileReferences", {}},
        {"attributeGroups", "id", nullptr, {}},
        {"entities", "typeName", nullptr, {}},
    };
    return sections;
}

/// Calls `visit` with every text that refers to an object of the section.
template <class Json, class Visit>
void ForEachReference(Json& json, const Section& section, const Visit& visit)
{
    if (!section.references)
        return;
    for (auto item = json.begin(); item != json.end(); ++item) {
        const std::string key = json.is_object() ? item.key() : std::string();
        if (key == section.references) {
            for (auto& reference : *item)
                visit(reference);
        } else if (section.singleNames.count(key) > 0) {
            visit(*item);
        } else if (item->is_structured()) {
            if (key == "children" && !section.singleNames.empty()) { // which attributes name
                for (auto& child : *item)
                    visit(child.at("name"));
            }
            ForEachReference(*item, section, visit);
        }
    }
}

std::set<std::string> References(const ordered_json& schema, const Section& section)
{
    std::set<std::string> names;
    ForEachReference(schema, section,
                     [&](const ordered_json& name) { names.insert(name.get<std::string>()); });
    return names;
}

const std::string& IdentifierOf(const ordered_json& object, const Section& section)
{
    return object.at(section.identifier).get_ref<const std::string&>();
}

/// The schema's own.
std::unordered_set<std::string_view> Identifiers(const ordered_json& schema, const Section& section)
{
    std::unordered_set<std::string_view> names;
    for (const ordered_json& object : schema.at(section.name))
        names.insert(IdentifierOf(object, section));
    return names;
}

/// All that an object says besides its identifier; empty when that is nothing.
std::string Content(ordered_json object, const Section& section)
{
    object.erase(section.identifier);
    bool saysSomething = false;
    for (const ordered_json& value : object)
        saysSomething = saysSomething || !(value.empty() || value == "" || value == false);
    return saysSomething ? object.dump(-1, ' ', false, ordered_json::error_handler_t::replace)
                         : std::string();
}

/// The identifiers that only one of the schemas has, by the content of their objects.
std::map<std::string, std::vector<std::string>> ByContent(const ordered_json& schema,
                                                          const std::unordered_set<std::string_view>& others,
                                                          const Section& section)
{
    std::map<std::string, std::vector<std::string>> names;
    for (const ordered_json& object : schema.at(section.name)) {
        const std::string& name = IdentifierOf(object, section);
        if (!name.empty() && others.count(name) == 0)
            names[Content(object, section)].push_back(name);
    }
    names.erase("");
    return names;
}

void Apply(const std::map<std::string, std::string>& newNames, ordered_json& before, const Section& section,
           std::map<std::string, Rename>& renames)
{
    for (ordered_json& object : before.at(section.name)) {
        const auto found = newNames.find(IdentifierOf(object, section));
        if (found == newNames.end())
            continue;
        renames[found->second].oldName = found->first;
        object.at(section.identifier) = found->second;
    }
    ForEachReference(before, section, [&](ordered_json& name) {
        const auto found = newNames.find(name.get<std::string>());
        if (found != newNames.end()) {
            ++renames[found->second].references;
            name = found->second;
        }
    });
}

} // namespace

FollowedRenames FollowRenames(const ordered_json& original, const ordered_json& after)
{
    FollowedRenames followed;
    for (const Section& section : Sections()) { // attributes first: the other objects refer to them
        const ordered_json& before = followed.before ? *followed.before : original;
        const auto gone = ByContent(before, Identifiers(after, section), section);
        const auto come = ByContent(after, Identifiers(before, section), section);
        if (gone.empty() || come.empty())
            continue;
        const std::set<std::string> oldReferences = References(before, section);
        const std::set<std::string> newReferences = References(after, section);
        std::map<std::string, std::string> newNames;
        for (const auto& [content, names] : gone) {
            const auto found = come.find(content);
            const bool single = found != come.end() && names.size() == 1 && found->second.size() == 1;
            if (single && newReferences.count(names.front()) == 0 &&
                oldReferences.count(found->second.front()) == 0)
                newNames.emplace(names.front(), found->second.front());
        }
        if (newNames.empty())
            continue;
        if (!followed.before)
            followed.before = original;
        Apply(newNames, *followed.before, section, followed.renames[section.name]);
    }
    return followed;
}
