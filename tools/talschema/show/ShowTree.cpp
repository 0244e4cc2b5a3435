#include "tools/talschema/show/ShowTree.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "tools/talschema/show/Tree.h"
#include "tools/talschema/terminal/Text.h"

using nlohmann::ordered_json;

namespace {

enum class Layout
{
    Name,    // the first column; an empty one must not vanish
    Column,  // a text, or a list of texts
    Flag,    // named in the last column if it is set
    Row,     // a row of its own, unless it is empty
    FullRow, // a row of its own, also if it is empty
    Branch,  // an object, or a list of objects, below a row of its own
    Merged,  // an object's rows, or the objects of a list, as if they were the owner's own
};

struct Field
{
    const char* key;
    const char* title; // null where the column explains itself
    Layout layout;
};

using Fields = std::vector<Field>;

// The fields of the objects that stand under a key of the JSON, in the order in which people see them.
const Fields& FieldsUnder(const std::string& key)
{
    using L = Layout;
    static const Fields unknown;
    static const std::map<std::string, Fields> fields = {
        {"", // the schema
         {{"storage", "Storage", L::Branch},
          {"attributes", "Attributes", L::Branch},
          {"files", "Files", L::Branch},
          {"attributeGroups", "Attribute groups", L::Branch},
          {"entities", "Entities", L::Branch}}},
        {"storage",
         {{"workingDirectory", "working directory", L::FullRow},
          {"sharedLocation", "shared location", L::FullRow},
          {"storageType", "storage type", L::FullRow}}},
        {"attributes",
         {{"id", "ID", L::Name},
          {"name", "Name", L::Column},
          {"dataType", "Type", L::Column},
          {"value", "Value", L::Column},
          {"min", "Min", L::Column},
          {"max", "Max", L::Column},
          {"displayable", "displayable", L::Flag},
          {"editable", "editable", L::Flag},
          {"useInComparison", "in comparison", L::Flag},
          {"onChangeCreateVersion", "creates version", L::Flag},
          {"dataGenerator", "generator", L::Branch}}},
        {"dataGenerator",
         {{"typeName", nullptr, L::Name},
          {"moduleName", "module", L::Row},
          {"functionName", "function", L::Row},
          {"entityId", "entity id", L::Row},
          {"entityName", "entity name", L::Row},
          {"className", "class", L::Row},
          {"creationType", "creation type", L::Row},
          {"resources", "resources", L::Row}}},
        {"files",
         {{"id", "ID", L::Name},
          {"name", "Name", L::Column},
          {"fileType", "Type", L::Column},
          {"extensions", "Extensions", L::Column},
          {"attributeReferences", "Attributes", L::Column},
          {"onChangeCreateVersion", "creates version", L::Flag}}},
        {"attributeGroups",
         {{"id", "ID", L::Name},
          {"label", "Label", L::Column},
          {"attributeReferences", "Attributes", L::Column},
          {"dataGenerator", "generator", L::Branch}}},
        {"entities",
         {{"typeName", "Type", L::Name},
          {"script", "Script", L::Column},
          {"fileReferences", "files", L::Row},
          {"attributeReferences", "attributes", L::Row},
          {"creationRules", nullptr, L::Merged},
          {"children", "assemblies", L::Branch},
          {"loadCaseTemplates", "load case templates", L::Branch}}},
        {"creationRules", {{"options", "options", L::Branch}, {"rules", "rules", L::Branch}}},
        {"options",
         {{"name", nullptr, L::Name}, {"value", nullptr, L::Column}, {"readers", nullptr, L::Merged}}},
        {"readers",
         {{"name", "Reader", L::Name}, {"script", "Script", L::Column}, {"value", "Value", L::Column}}},
        {"rules", {{"name", nullptr, L::Name}, {"value", nullptr, L::Column}}},
        {"children",
         {{"name", nullptr, L::Name}, {"value", nullptr, L::Column}, {"creationRules", nullptr, L::Merged}}},
        {"loadCaseTemplates",
         {{"conditionName", nullptr, L::Name},
          {"conditionValue", nullptr, L::Column},
          {"folders", nullptr, L::Merged}}},
        {"folders",
         {{"name", nullptr, L::Name},
          {"attributeReferences", nullptr, L::Column},
          {"folders", nullptr, L::Merged}}},
    };
    const auto found = fields.find(key);
    return found == fields.end() ? unknown : found->second;
}

std::vector<std::string> ColumnTitles(const Fields& fields)
{
    std::vector<std::string> titles;
    bool flags = false;
    for (const Field& field : fields) {
        if (field.title && (field.layout == Layout::Name || field.layout == Layout::Column))
            titles.emplace_back(field.title);
        flags = flags || field.layout == Layout::Flag;
    }
    if (flags)
        titles.emplace_back("Flags");
    return titles;
}

// An empty text that must not vanish.
std::string OrQuotes(std::string shown)
{
    return shown.empty() ? "\"\"" : std::move(shown);
}

void Join(std::string& list, const std::string& part)
{
    list += (list.empty() ? "" : ", ") + part;
}

// A text, a list of texts, or a flag.
std::string Shown(const ordered_json& value)
{
    if (value.is_array()) {
        std::string list;
        for (const ordered_json& part : value)
            Join(list, OrQuotes(Shown(part)));
        return list;
    }
    if (value.is_boolean())
        return value.get<bool>() ? "yes" : "no";
    const std::string text =
        Printable(value.is_string() ? value.get_ref<const std::string&>() : value.dump());
    // Quoted where a reader could not see the end of it.
    const bool blankAtEnd = !text.empty() && (text.front() == ' ' || text.back() == ' ');
    return blankAtEnd ? '"' + text + '"' : text;
}

void AddContent(TreeNode& node, const ordered_json& object, const Fields& fields);

// Adds the objects of a list, or what is in a single object.
void AddObjects(TreeNode& node, const std::string& key, const ordered_json& value)
{
    const Fields& fields = FieldsUnder(key);
    if (!value.is_array()) {
        AddContent(node, value, fields);
        return;
    }
    for (const ordered_json& object : value) {
        TreeNode entry;
        if (fields.empty()) // nothing says what names it
            entry.cells.push_back(std::to_string(node.children.size() + 1));
        AddContent(entry, object, fields);
        node.children.push_back(std::move(entry));
    }
    node.titles = ColumnTitles(fields);
}

TreeNode Branch(const Field& field, const ordered_json& value)
{
    TreeNode node{{field.title}};
    AddObjects(node, field.key, value);
    return node;
}

void AddField(TreeNode& node, std::string& flags, const Field& field, const ordered_json& value)
{
    switch (field.layout) {
    case Layout::Name:
        node.cells.push_back(OrQuotes(Shown(value)));
        break;
    case Layout::Column:
        node.cells.push_back(Shown(value));
        break;
    case Layout::Flag:
        if (value == true)
            Join(flags, field.title);
        break;
    case Layout::Row:
        if (!value.empty() && value != "")
            node.children.push_back({{field.title, Shown(value)}});
        break;
    case Layout::FullRow:
        node.children.push_back({{field.title, OrQuotes(Shown(value))}});
        break;
    case Layout::Branch:
        if (!value.empty())
            node.children.push_back(Branch(field, value));
        break;
    case Layout::Merged:
        if (!value.empty())
            AddObjects(node, field.key, value);
    }
}

const Field* Find(const Fields& fields, const std::string& key)
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const Field& field) { return key == field.key; });
    return found == fields.end() ? nullptr : &*found;
}

Field UnknownField(const std::string& key, const ordered_json& value)
{
    const bool isBranch =
        value.empty() || value.is_object() || (value.is_array() && value.front().is_object());
    return {key.c_str(), key.c_str(), isBranch ? Layout::Branch : Layout::FullRow};
}

void AddContent(TreeNode& node, const ordered_json& object, const Fields& fields)
{
    std::string flags;
    std::size_t known = 0;
    for (const Field& field : fields) {
        const auto found = object.find(field.key);
        if (found != object.end()) {
            AddField(node, flags, field, *found);
            ++known;
        }
    }
    for (auto field = object.begin(); known < object.size() && field != object.end(); ++field) {
        if (!Find(fields, field.key()))
            AddField(node, flags, UnknownField(field.key(), *field), *field);
    }
    if (!flags.empty())
        node.cells.push_back(std::move(flags));
}

std::size_t Count(const ordered_json& section)
{
    return section.is_object() ? 1 : section.size();
}

} // namespace

std::string SchemaAsTree(const ordered_json& schema, const std::string& title, bool coloured)
{
    const Fields& fields = FieldsUnder("");
    TreeNode counts{{Printable(title)}};
    for (const auto& [key, value] : schema.items()) {
        const Field* const field = Find(fields, key);
        counts.children.push_back({{field ? field->title : key, std::to_string(Count(value))}});
    }
    std::string text = TreeAsText(counts, coloured);

    TreeNode sections;
    AddContent(sections, schema, fields);
    for (const TreeNode& section : sections.children)
        text += "\n" + TreeAsText(section, coloured);
    return text;
}
