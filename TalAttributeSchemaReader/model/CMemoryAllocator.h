// The factories of the model.
#pragma once

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// Creates model objects. Each factory appends the new object to the parent's list, or returns the one that
/// is already in the parent's single slot (storage, data generator, creation rules). The parent owns the
/// result. A null parent gives null. When memory runs out, `std::bad_alloc` leaves the parent as it was.
class CAESCHEMASCM_API CMemoryAllocator
{
public:
    static CStorage* GetStorageObject(CDASchema* schema);
    static FileAttribute* CreateAttributeObject(CDASchema* schema);
    static CSingleFile* CreateFileObject(CDASchema* schema);
    static CAttributeGroup* CreateAttributeGroupObject(CDASchema* schema);
    static CustomEntity* GetNewChildCustomEntity(CDASchema* schema);

    static CDataGenerator* CreateDataGenerator(FileAttribute* attribute);
    static CDataGenerator* CreateDataGenerator(CAttributeGroup* group);
    static FileExtensions* GetNewFileExtensions(CSingleFile* file);

    static CChildrenCreation* CreateChildrenCreation(CustomEntity* entity);
    static CCreationRules* CreateCreationRules(CustomEntity* entity);
    static CCreationRules* CreateCreationRulesForChildren(CChildrenCreation* childrenCreation);
    static CCreationOption* CreateOptionObject(CCreationRules* rules);

    static CLoadCaseTemplate* CreateLoadCaseTemplateObject(CustomEntity* entity);
    static CAttributeFolders* CreateAttributeFolderObject(CLoadCaseTemplate* loadCaseTemplate);
    static CAttributeFolders* CreateAttributeFolderObject(CAttributeFolders* folder);
};
