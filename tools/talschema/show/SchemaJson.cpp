#include "tools/talschema/show/SchemaJson.h"

#include <initializer_list>
#include <sstream>
#include <utility>

#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/model/ModelWalk.h"
#include "tools/talschema/terminal/Text.h"

using nlohmann::ordered_json;

namespace {

using tal::ToUtf8;

struct Field
{
    const char* key;
    mutable ordered_json value; // moved out of the list
};

// The initialiser of the JSON library would make an array of every field first.
ordered_json Object(std::initializer_list<Field> fields)
{
    ordered_json::object_t object;
    object.reserve(fields.size());
    for (const Field& field : fields)
        object.emplace_back(field.key, std::move(field.value));
    return ordered_json(std::move(object));
}

ordered_json ToJson(const GuStringArray& texts)
{
    ordered_json array = ordered_json::array();
    for (const GuString& text : texts)
        array.push_back(ToUtf8(text));
    return array;
}

// One array entry for every object, by the overload of `ToJson` for its type.
template <class Objects>
ordered_json ListToJson(const Objects& objects);

// null, or what the overload for `T` makes of the object.
template <class T>
ordered_json ToJsonOrNull(const T* object);

ordered_json ToJson(const CStorage& storage)
{
    return Object({{"workingDirectory", ToUtf8(storage.GetWorkingDirectory())},
                   {"sharedLocation", ToUtf8(storage.GetSharedLocation())},
                   {"storageType", ToUtf8(storage.GetStorageType())}});
}

ordered_json ToJson(const CDataGenerator& generator)
{
    return Object({{"typeName", ToUtf8(generator.GetTypeName())},
                   {"moduleName", ToUtf8(generator.GetModuleName())},
                   {"functionName", ToUtf8(generator.GetFunctionName())},
                   {"entityId", ToUtf8(generator.GetEntityID())},
                   {"entityName", ToUtf8(generator.GetEntityName())},
                   {"className", ToUtf8(generator.GetClassName())},
                   {"creationType", ToUtf8(generator.GetCreationType())},
                   {"resources", ToJson(generator.GetResources())}});
}

ordered_json ToJson(const FileAttribute& attribute)
{
    return Object({{"id", ToUtf8(attribute.GetID())},
                   {"name", ToUtf8(attribute.GetName())},
                   {"value", ToUtf8(attribute.GetValue())},
                   {"min", ToUtf8(attribute.GetMinValue())},
                   {"max", ToUtf8(attribute.GetMaxValue())},
                   {"displayable", attribute.GetDisplayable()},
                   {"editable", attribute.GetEditable()},
                   {"dataType", ToUtf8(attribute.GetDataType())},
                   {"useInComparison", attribute.m_useInComparison},
                   {"onChangeCreateVersion", attribute.GetMetaDataChangeCreateVersionValue()},
                   {"dataGenerator", ToJsonOrNull(attribute.GetDataGenerator())}});
}

ordered_json ToJson(const FileExtensions& extension)
{
    return ToUtf8(extension.GetExtension());
}

ordered_json ToJson(const CSingleFile& file)
{
    return Object({{"id", ToUtf8(file.GetUniqueId())},
                   {"name", ToUtf8(file.GetName())},
                   {"fileType", ToUtf8(file.GetFileType())},
                   {"onChangeCreateVersion", file.GetOnChangeCreateVersionValue()},
                   {"extensions", ListToJson(tal::Extensions(file))},
                   {"attributeReferences", ToJson(file.getAllAttributeReferenceId())}});
}

ordered_json ToJson(const CAttributeGroup& group)
{
    return Object({{"id", ToUtf8(group.GetAttributeId())},
                   {"label", ToUtf8(group.GetAttributeLabel())},
                   {"attributeReferences", ToJson(group.GetAllAttributeReferences())},
                   {"dataGenerator", ToJsonOrNull(group.GetDataGenerator())}});
}

ordered_json ToJson(const CCreationOption& option)
{
    ordered_json readers = ordered_json::array();
    for (const auto& [name, script, value] : tal::Readers(option))
        readers.push_back(
            Object({{"name", ToUtf8(name)}, {"script", ToUtf8(script)}, {"value", ToUtf8(value)}}));
    return Object({{"name", ToUtf8(option.GetOptionName())},
                   {"value", ToUtf8(option.GetOptionValue())},
                   {"readers", std::move(readers)}});
}

ordered_json ToJson(const CCreationRules& creationRules)
{
    ordered_json rules = ordered_json::array();
    for (const auto& [name, value] : tal::Rules(creationRules))
        rules.push_back(Object({{"name", ToUtf8(name)}, {"value", ToUtf8(value)}}));
    return Object({{"options", ListToJson(tal::Options(creationRules))}, {"rules", std::move(rules)}});
}

ordered_json ToJson(const CChildrenCreation& child)
{
    return Object({{"name", ToUtf8(child.GetAssemblyName())},
                   {"value", ToUtf8(child.GetAssemblyValue())},
                   {"creationRules", ToJsonOrNull(child.GetCreationRules())}});
}

ordered_json ToJson(const CAttributeFolders& folder)
{
    return Object({{"name", ToUtf8(folder.GetAttributeFolderName())},
                   {"attributeReferences", ToJson(folder.GetAllAttributeReferences())},
                   {"folders", ListToJson(tal::SubFolders(folder))}});
}

ordered_json ToJson(const CLoadCaseTemplate& loadCaseTemplate)
{
    return Object({{"conditionName", ToUtf8(loadCaseTemplate.GetConditionName())},
                   {"conditionValue", ToUtf8(loadCaseTemplate.GetConditionValue())},
                   {"folders", ListToJson(tal::Folders(loadCaseTemplate))}});
}

ordered_json ToJson(const CustomEntity& entity)
{
    return Object({{"typeName", ToUtf8(entity.GetTypeName())},
                   {"script", ToUtf8(entity.GetScript())},
                   {"fileReferences", ToJson(entity.GetAllFileReferenceId())},
                   {"attributeReferences", ToJson(entity.GetAllAttributeReferenceId())},
                   {"creationRules", ToJsonOrNull(entity.GetCreationRules())},
                   {"children", ListToJson(tal::Assemblies(entity))},
                   {"loadCaseTemplates", ListToJson(tal::LoadCaseTemplates(entity))}});
}

template <class Objects>
ordered_json ListToJson(const Objects& objects)
{
    ordered_json array = ordered_json::array();
    for (const auto& object : objects)
        array.push_back(ToJson(object));
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
    return Object({{"storage", ToJsonOrNull(schema.GetStorage())},
                   {"attributes", ListToJson(tal::Attributes(schema))},
                   {"files", ListToJson(tal::Files(schema))},
                   {"attributeGroups", ListToJson(tal::AttributeGroups(schema))},
                   {"entities", ListToJson(tal::Entities(schema))}});
}

std::string JsonAsText(const ordered_json& json)
{
    std::istringstream lines(json.dump(2));
    std::string text;
    // JSON leaves some characters alone that drive a terminal; their escapes are valid JSON, too.
    for (std::string line; std::getline(lines, line);)
        text += Printable(line) + "\n";
    return text;
}
