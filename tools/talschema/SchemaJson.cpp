// The model as JSON.
#include "tools/talschema/SchemaJson.h"

#include <sstream>
#include <utility>

#include "TalAttributeSchemaReader/builders/ModelWalk.h"
#include "tools/talschema/Text.h"

using nlohmann::ordered_json;

namespace {

ordered_json ToJson(const GuStringArray& texts)
{
    ordered_json array = ordered_json::array();
    for (const GuString& text : texts)
        array.push_back(ToUtf8(text));
    return array;
}

// One array entry for every object of a list that holds `T`, by the overload of `ToJson` for `T`.
template <class T, class Pointer>
ordered_json ListToJson(const CGTList<Pointer>& list);

// null, or what the overload for `T` makes of the object.
template <class T>
ordered_json ToJsonOrNull(const T* object);

ordered_json ToJson(const CStorage& storage)
{
    return {{"workingDirectory", ToUtf8(storage.GetWorkingDirectory())},
            {"sharedLocation", ToUtf8(storage.GetSharedLocation())},
            {"storageType", ToUtf8(storage.GetStorageType())}};
}

ordered_json ToJson(const CDataGenerator& generator)
{
    return {{"typeName", ToUtf8(generator.GetTypeName())},
            {"moduleName", ToUtf8(generator.GetModuleName())},
            {"functionName", ToUtf8(generator.GetFunctionName())},
            {"entityId", ToUtf8(generator.GetEntityID())},
            {"entityName", ToUtf8(generator.GetEntityName())},
            {"className", ToUtf8(generator.GetClassName())},
            {"creationType", ToUtf8(generator.GetCreationType())},
            {"resources", ToJson(generator.GetResources())}};
}

ordered_json ToJson(const FileAttribute& attribute)
{
    return {{"id", ToUtf8(attribute.GetID())},
            {"name", ToUtf8(attribute.GetName())},
            {"value", ToUtf8(attribute.GetValue())},
            {"min", ToUtf8(attribute.GetMinValue())},
            {"max", ToUtf8(attribute.GetMaxValue())},
            {"displayable", attribute.GetDisplayable()},
            {"editable", attribute.GetEditable()},
            {"dataType", ToUtf8(attribute.GetDataType())},
            {"useInComparison", attribute.m_useInComparison},
            {"onChangeCreateVersion", attribute.GetMetaDataChangeCreateVersionValue()},
            {"dataGenerator", ToJsonOrNull(attribute.GetDataGenerator())}};
}

ordered_json ToJson(const FileExtensions& extension)
{
    return ToUtf8(extension.GetExtension());
}

ordered_json ToJson(const CSingleFile& file)
{
    return {{"id", ToUtf8(file.GetUniqueId())},
            {"name", ToUtf8(file.GetName())},
            {"fileType", ToUtf8(file.GetFileType())},
            {"onChangeCreateVersion", file.GetOnChangeCreateVersionValue()},
            {"extensions", ListToJson<FileExtensions>(*file.GetFileExtensionsList())},
            {"attributeReferences", ToJson(file.getAllAttributeReferenceId())}};
}

ordered_json ToJson(const CAttributeGroup& group)
{
    return {{"id", ToUtf8(group.GetAttributeId())},
            {"label", ToUtf8(group.GetAttributeLabel())},
            {"attributeReferences", ToJson(group.GetAllAttributeReferences())},
            {"dataGenerator", ToJsonOrNull(group.GetDataGenerator())}};
}

ordered_json ToJson(const CCreationOption& option)
{
    GuStringArray names;
    GuStringArray scripts;
    GuStringArray values;
    option.GetAllReaders(names, scripts, values);
    ordered_json readers = ordered_json::array();
    for (std::size_t i = 0; i < names.GetSize(); ++i)
        readers.push_back({{"name", ToUtf8(names[i])},
                           {"script", ToUtf8(EntryOrEmpty(scripts, i))},
                           {"value", ToUtf8(EntryOrEmpty(values, i))}});
    return {{"name", ToUtf8(option.GetOptionName())},
            {"value", ToUtf8(option.GetOptionValue())},
            {"readers", std::move(readers)}};
}

ordered_json ToJson(const CCreationRules& creationRules)
{
    GuStringArray names;
    GuStringArray values;
    creationRules.GetAllRules(names, values);
    ordered_json rules = ordered_json::array();
    for (std::size_t i = 0; i < names.GetSize(); ++i)
        rules.push_back({{"name", ToUtf8(names[i])}, {"value", ToUtf8(EntryOrEmpty(values, i))}});
    return {{"options", ListToJson<CCreationOption>(creationRules.GetOptionList())},
            {"rules", std::move(rules)}};
}

ordered_json ToJson(const CChildrenCreation& child)
{
    return {{"name", ToUtf8(child.GetAssemblyName())},
            {"value", ToUtf8(child.GetAssemblyValue())},
            {"creationRules", ToJsonOrNull(child.GetCreationRules())}};
}

ordered_json ToJson(const CAttributeFolders& folder)
{
    return {{"name", ToUtf8(folder.GetAttributeFolderName())},
            {"attributeReferences", ToJson(folder.GetAllAttributeReferences())},
            {"folders", ListToJson<CAttributeFolders>(folder.GetSubFolderList())}};
}

ordered_json ToJson(const CLoadCaseTemplate& loadCaseTemplate)
{
    return {{"conditionName", ToUtf8(loadCaseTemplate.GetConditionName())},
            {"conditionValue", ToUtf8(loadCaseTemplate.GetConditionValue())},
            {"folders", ListToJson<CAttributeFolders>(loadCaseTemplate.GetAttributeFolderList())}};
}

ordered_json ToJson(const CustomEntity& entity)
{
    return {{"typeName", ToUtf8(entity.GetTypeName())},
            {"script", ToUtf8(entity.GetScript())},
            {"fileReferences", ToJson(entity.GetAllFileReferenceId())},
            {"attributeReferences", ToJson(entity.GetAllAttributeReferenceId())},
            {"creationRules", ToJsonOrNull(entity.GetCreationRules())},
            {"children", ListToJson<CChildrenCreation>(entity.GetChildrenCreationList())},
            {"loadCaseTemplates", ListToJson<CLoadCaseTemplate>(entity.GetLoadCaseTemplateList())}};
}

template <class T, class Pointer>
ordered_json ListToJson(const CGTList<Pointer>& list)
{
    ordered_json array = ordered_json::array();
    ForEachObject<const T>(list, [&](const T* object) { array.push_back(ToJson(*object)); });
    return array;
}

template <class T>
ordered_json ToJsonOrNull(const T* object)
{
    return object ? ToJson(*object) : ordered_json();
}

} // namespace

ordered_json SchemaToJson(const CDASchema& schema)
{
    return {{"storage", ToJsonOrNull(schema.GetStorage())},
            {"attributes", ListToJson<FileAttribute>(schema.GetAttributeList())},
            {"files", ListToJson<CSingleFile>(schema.GetFileList())},
            {"attributeGroups", ListToJson<CAttributeGroup>(schema.GetAttributeGroupList())},
            {"entities", ListToJson<CustomEntity>(*schema.GetCustomEntityList())}};
}

std::string JsonAsText(const ordered_json& json)
{
    std::istringstream lines(json.dump(2));
    std::string text;
    // JSON leaves some characters alone that drive a terminal; their escapes are valid JSON, too.
    for (std::string line; std::getline(lines, line);)
        text += Printable(line.c_str()) + "\n";
    return text;
}
