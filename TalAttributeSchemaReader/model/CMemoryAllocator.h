// The factories of the model.
#pragma once

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// Creates model objects. Each factory appends the new object to the parent's list, or returns the one that
/// is already in the parent's single slot (storage, data generator, creation rules). The parent owns the
/// result. A null parent gives null. When memory runs out, `std::bad_alloc` leaves the parent as it was.
class CAESCHEMASCM_API CMemoryAllocator
{
public:
    /// The storage of the schema, made when there is none.
    static CStorage* GetStorageObject(CDASchema* schema);
    /// A new attribute definition at the end of `CDASchema::GetAttributeList`.
    static FileAttribute* CreateAttributeObject(CDASchema* schema);
    /// A new file kind at the end of `CDASchema::GetFileList`.
    static CSingleFile* CreateFileObject(CDASchema* schema);
    /// A new attribute group at the end of `CDASchema::GetAttributeGroupList`.
    static CAttributeGroup* CreateAttributeGroupObject(CDASchema* schema);
    /// A new entity type at the end of `CDASchema::GetCustomEntityList`.
    static CustomEntity* GetNewChildCustomEntity(CDASchema* schema);

    /// The data generator of the attribute definition, made when there is none.
    static CDataGenerator* CreateDataGenerator(FileAttribute* attribute);
    /// The data generator of the attribute group, made when there is none.
    static CDataGenerator* CreateDataGenerator(CAttributeGroup* group);
    /// A new, empty extension at the end of `CSingleFile::GetFileExtensionsList`.
    static FileExtensions* GetNewFileExtensions(CSingleFile* file);

    /// A new assembly at the end of `CustomEntity::GetChildrenCreationList`.
    static CChildrenCreation* CreateChildrenCreation(CustomEntity* entity);
    /// The creation rules of the entity type, made when there are none.
    static CCreationRules* CreateCreationRules(CustomEntity* entity);
    /// The creation rules of the assembly, made when there are none.
    static CCreationRules* CreateCreationRulesForChildren(CChildrenCreation* childrenCreation);
    /// A new option at the end of `CCreationRules::GetOptionList`.
    static CCreationOption* CreateOptionObject(CCreationRules* rules);

    /// A new load case template at the end of `CustomEntity::GetLoadCaseTemplateList`.
    static CLoadCaseTemplate* CreateLoadCaseTemplateObject(CustomEntity* entity);
    /// A new folder directly below the load case template.
    static CAttributeFolders* CreateAttributeFolderObject(CLoadCaseTemplate* loadCaseTemplate);
    /// A new folder directly below another one.
    static CAttributeFolders* CreateAttributeFolderObject(CAttributeFolders* folder);
};
