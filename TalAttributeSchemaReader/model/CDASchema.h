// The root of the model.
#pragma once

#include <memory>

#include "TalAttributeSchemaReader/model/CAttributeGroup.h"
#include "TalAttributeSchemaReader/model/CSingleFile.h"
#include "TalAttributeSchemaReader/model/CStorage.h"
#include "TalAttributeSchemaReader/model/CustomEntity.h"
#include "TalAttributeSchemaReader/model/FileAttribute.h"

/// An attribute schema. It owns every object below it: `delete schema` frees the whole tree. New objects come
/// from `CMemoryAllocator` only.
class CAESCHEMASCM_API CDASchema
{
public:
    /// An empty schema: no storage object, empty lists.
    CDASchema();
    CDASchema(const CDASchema&) = delete;
    CDASchema& operator=(const CDASchema&) = delete;
    /// Frees every object below the schema, however deep a host has nested it.
    virtual ~CDASchema();

    /// Null until `CMemoryAllocator::GetStorageObject` makes it.
    CStorage* GetStorage() const { return m_storage.get(); }
    /// Holds `FileAttribute`.
    const GuList& GetAttributeList() const { return m_attributes.Get(); }
    /// Holds `CSingleFile`.
    const GuList& GetFileList() const { return m_files.Get(); }
    /// Holds `CAttributeGroup`.
    const GuList& GetAttributeGroupList() const { return m_attributeGroups.Get(); }
    /// @{
    /// The schema's own list, never null. The schema owns what stands in it: `TakeFirst` hands an entity
    /// to the caller, who deletes it or gives it to another schema with `Add`; `Add` hands one to the schema.
    CGTList<CustomEntity*>* GetCustomEntityList() { return &m_entities.Get(); }
    const CGTList<CustomEntity*>* GetCustomEntityList() const { return &m_entities.Get(); }
    /// @}

private:
    friend class CMemoryAllocator;

    std::unique_ptr<CStorage> m_storage;
    OwningList<FileAttribute, GuList> m_attributes;
    OwningList<CSingleFile, GuList> m_files;
    OwningList<CAttributeGroup, GuList> m_attributeGroups;
    OwningList<CustomEntity, CGTList<CustomEntity*>> m_entities;
};
