// The model as a tree for people.
#include "tools/talschema/Show.h"

#include <utility>
#include <vector>

#include "TalAttributeSchemaReader/builders/ModelWalk.h"
#include "tools/talschema/Text.h"
#include "tools/talschema/Tree.h"

namespace {

// Quoted where a reader could not see the end of it.
std::string Shown(const GuString& value)
{
    const std::string text = Printable(value);
    const bool blankAtEnd = !text.empty() && (text.front() == ' ' || text.back() == ' ');
    return blankAtEnd ? '"' + text + '"' : text;
}

// For what must not vanish, although it is empty: identifiers, names and references.
std::string ShownAlways(const GuString& value)
{
    return value.IsEmpty() ? "\"\"" : Shown(value);
}

std::string Joined(const std::vector<std::string>& parts)
{
    std::string joined;
    for (const std::string& part : parts)
        joined += (joined.empty() ? "" : ", ") + part;
    return joined;
}

std::string Joined(const GuStringArray& values)
{
    std::vector<std::string> parts;
    for (const GuString& value : values)
        parts.push_back(ShownAlways(value));
    return Joined(parts);
}

std::string Flags(const std::vector<std::pair<bool, std::string>>& flags)
{
    std::vector<std::string> set;
    for (const auto& [isSet, name] : flags) {
        if (isSet)
            set.push_back(name);
    }
    return Joined(set);
}

void AddField(TreeNode& node, const char* name, const std::string& shown)
{
    if (!shown.empty())
        node.children.push_back({{name, shown}});
}

void AddList(TreeNode& node, TreeNode list)
{
    if (!list.children.empty())
        node.children.push_back(std::move(list));
}

// A child for every object of a list that holds `T`, by the overload of `NodeOf` for `T`.
template <class T, class Pointer>
void AddObjects(TreeNode& node, const CGTList<Pointer>& list);

template <class T, class Pointer>
TreeNode NodeOfList(const char* name, const CGTList<Pointer>& list, std::vector<std::string> titles = {})
{
    TreeNode node{{name}, {}, std::move(titles)};
    AddObjects<T>(node, list);
    return node;
}

TreeNode NodeOf(const CStorage& storage)
{
    return {{"Storage"},
            {{{"working directory", ShownAlways(storage.GetWorkingDirectory())}},
             {{"shared location", ShownAlways(storage.GetSharedLocation())}},
             {{"storage type", ShownAlways(storage.GetStorageType())}}}};
}

void AddGenerator(TreeNode& node, const CDataGenerator* generator)
{
    if (!generator)
        return;
    TreeNode child{{"generator", ShownAlways(generator->GetTypeName())}};
    AddField(child, "module", Shown(generator->GetModuleName()));
    AddField(child, "function", Shown(generator->GetFunctionName()));
    AddField(child, "entity id", Shown(generator->GetEntityID()));
    AddField(child, "entity name", Shown(generator->GetEntityName()));
    AddField(child, "class", Shown(generator->GetClassName()));
    AddField(child, "creation type", Shown(generator->GetCreationType()));
    AddField(child, "resources", Joined(generator->GetResources()));
    node.children.push_back(std::move(child));
}

TreeNode NodeOf(const FileAttribute& attribute)
{
    TreeNode node{{ShownAlways(attribute.GetID()), Shown(attribute.GetName()), Shown(attribute.GetDataType()),
                   Shown(attribute.GetValue()), Shown(attribute.GetMinValue()),
                   Shown(attribute.GetMaxValue()),
                   Flags({{attribute.GetDisplayable(), "displayable"},
                          {attribute.GetEditable(), "editable"},
                          {attribute.m_useInComparison, "in comparison"},
                          {attribute.GetMetaDataChangeCreateVersionValue(), "creates version"}})}};
    AddGenerator(node, attribute.GetDataGenerator());
    return node;
}

TreeNode NodeOf(const CSingleFile& file)
{
    std::vector<std::string> extensions;
    ForEachObject<const FileExtensions>(*file.GetFileExtensionsList(), [&](const FileExtensions* extension) {
        extensions.push_back(ShownAlways(extension->GetExtension()));
    });
    return {{ShownAlways(file.GetUniqueId()), Shown(file.GetName()), Shown(file.GetFileType()),
             Joined(extensions), Joined(file.getAllAttributeReferenceId()),
             Flags({{file.GetOnChangeCreateVersionValue(), "creates version"}})}};
}

TreeNode NodeOf(const CAttributeGroup& group)
{
    TreeNode node{{ShownAlways(group.GetAttributeId()), Shown(group.GetAttributeLabel()),
                   Joined(group.GetAllAttributeReferences())}};
    AddGenerator(node, group.GetDataGenerator());
    return node;
}

TreeNode NodeOf(const CCreationOption& option)
{
    GuStringArray names;
    GuStringArray scripts;
    GuStringArray values;
    option.GetAllReaders(names, scripts, values);
    TreeNode node{{ShownAlways(option.GetOptionName()), Shown(option.GetOptionValue())},
                  {},
                  {"Reader", "Script", "Value"}};
    for (std::size_t i = 0; i < names.GetSize(); ++i)
        node.children.push_back(
            {{ShownAlways(names[i]), Shown(EntryOrEmpty(scripts, i)), Shown(EntryOrEmpty(values, i))}});
    return node;
}

void AddCreationRules(TreeNode& node, const CCreationRules* creationRules)
{
    if (!creationRules)
        return;
    AddList(node, NodeOfList<CCreationOption>("options", creationRules->GetOptionList()));

    GuStringArray names;
    GuStringArray values;
    creationRules->GetAllRules(names, values);
    TreeNode rules{{"rules"}};
    for (std::size_t i = 0; i < names.GetSize(); ++i)
        rules.children.push_back({{ShownAlways(names[i]), Shown(EntryOrEmpty(values, i))}});
    AddList(node, std::move(rules));
}

TreeNode NodeOf(const CChildrenCreation& assembly)
{
    TreeNode node{{ShownAlways(assembly.GetAssemblyName()), Shown(assembly.GetAssemblyValue())}};
    AddCreationRules(node, assembly.GetCreationRules());
    return node;
}

TreeNode NodeOf(const CAttributeFolders& folder)
{
    TreeNode node{{ShownAlways(folder.GetAttributeFolderName()), Joined(folder.GetAllAttributeReferences())}};
    AddObjects<CAttributeFolders>(node, folder.GetSubFolderList());
    return node;
}

TreeNode NodeOf(const CLoadCaseTemplate& loadCaseTemplate)
{
    TreeNode node{
        {ShownAlways(loadCaseTemplate.GetConditionName()), Shown(loadCaseTemplate.GetConditionValue())}};
    AddObjects<CAttributeFolders>(node, loadCaseTemplate.GetAttributeFolderList());
    return node;
}

TreeNode NodeOf(const CustomEntity& entity)
{
    TreeNode node{{ShownAlways(entity.GetTypeName()), Shown(entity.GetScript())}};
    AddField(node, "files", Joined(entity.GetAllFileReferenceId()));
    AddField(node, "attributes", Joined(entity.GetAllAttributeReferenceId()));
    AddCreationRules(node, entity.GetCreationRules());
    AddList(node, NodeOfList<CChildrenCreation>("assemblies", entity.GetChildrenCreationList()));
    AddList(node, NodeOfList<CLoadCaseTemplate>("load case templates", entity.GetLoadCaseTemplateList()));
    return node;
}

template <class T, class Pointer>
void AddObjects(TreeNode& node, const CGTList<Pointer>& list)
{
    ForEachObject<const T>(list, [&](const T* object) { node.children.push_back(NodeOf(*object)); });
}

} // namespace

std::string SchemaAsTree(const CDASchema& schema, const std::string& title, bool coloured)
{
    const std::vector<TreeNode> sections = {
        NodeOfList<FileAttribute>("Attributes", schema.GetAttributeList(),
                                  {"ID", "Name", "Type", "Value", "Min", "Max", "Flags"}),
        NodeOfList<CSingleFile>("Files", schema.GetFileList(),
                                {"ID", "Name", "Type", "Extensions", "Attributes", "Flags"}),
        NodeOfList<CAttributeGroup>("Attribute groups", schema.GetAttributeGroupList(),
                                    {"ID", "Label", "Attributes"}),
        NodeOfList<CustomEntity>("Entities", *schema.GetCustomEntityList(), {"Type", "Script"}),
    };

    TreeNode counts{{Printable(title.c_str())}};
    counts.children.push_back({{"Storage", schema.GetStorage() ? "1" : "0"}});
    for (const TreeNode& section : sections)
        counts.children.push_back({{section.cells.front(), std::to_string(section.children.size())}});

    std::string text = TreeAsText(counts, coloured);
    if (schema.GetStorage())
        text += "\n" + TreeAsText(NodeOf(*schema.GetStorage()), coloured);
    for (const TreeNode& section : sections) {
        if (!section.children.empty())
            text += "\n" + TreeAsText(section, coloured);
    }
    return text;
}
