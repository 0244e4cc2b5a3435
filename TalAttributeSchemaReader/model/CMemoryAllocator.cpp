#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"

namespace {

template <class T>
T* CreateOnce(std::unique_ptr<T>& slot)
{
    if (!slot)
        slot = std::make_unique<T>();
    return slot.get();
}

} // namespace

CStorage* CMemoryAllocator::GetStorageObject(CDASchema* schema)
{
    return schema ? CreateOnce(schema->m_storage) : nullptr;
}

FileAttribute* CMemoryAllocator::CreateAttributeObject(CDASchema* schema)
{
    return schema ? schema->m_attributes.Create() : nullptr;
}

CSingleFile* CMemoryAllocator::CreateFileObject(CDASchema* schema)
{
    return schema ? schema->m_files.Create() : nullptr;
}

CAttributeGroup* CMemoryAllocator::CreateAttributeGroupObject(CDASchema* schema)
{
    return schema ? schema->m_attributeGroups.Create() : nullptr;
}

CustomEntity* CMemoryAllocator::GetNewChildCustomEntity(CDASchema* schema)
{
    return schema ? schema->m_entities.Create() : nullptr;
}

CDataGenerator* CMemoryAllocator::CreateDataGenerator(FileAttribute* attribute)
{
    return attribute ? CreateOnce(attribute->m_dataGenerator) : nullptr;
}

CDataGenerator* CMemoryAllocator::CreateDataGenerator(CAttributeGroup* group)
{
    return group ? CreateOnce(group->m_dataGenerator) : nullptr;
}

FileExtensions* CMemoryAllocator::GetNewFileExtensions(CSingleFile* file)
{
    return file ? file->m_extensions.Create() : nullptr;
}

CChildrenCreation* CMemoryAllocator::CreateChildrenCreation(CustomEntity* entity)
{
    return entity ? entity->m_childrenCreations.Create() : nullptr;
}

CCreationRules* CMemoryAllocator::CreateCreationRules(CustomEntity* entity)
{
    return entity ? CreateOnce(entity->m_creationRules) : nullptr;
}

CCreationRules* CMemoryAllocator::CreateCreationRulesForChildren(CChildrenCreation* childrenCreation)
{
    return childrenCreation ? CreateOnce(childrenCreation->m_creationRules) : nullptr;
}

CCreationOption* CMemoryAllocator::CreateOptionObject(CCreationRules* rules)
{
    return rules ? rules->m_options.Create() : nullptr;
}

CLoadCaseTemplate* CMemoryAllocator::CreateLoadCaseTemplateObject(CustomEntity* entity)
{
    return entity ? entity->m_loadCaseTemplates.Create() : nullptr;
}

CAttributeFolders* CMemoryAllocator::CreateAttributeFolderObject(CLoadCaseTemplate* loadCaseTemplate)
{
    return loadCaseTemplate ? loadCaseTemplate->m_attributeFolders.Create() : nullptr;
}

CAttributeFolders* CMemoryAllocator::CreateAttributeFolderObject(CAttributeFolders* folder)
{
    return folder ? folder->m_subFolders.Create() : nullptr;
}
