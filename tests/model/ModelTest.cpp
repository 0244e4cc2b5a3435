// The model: factories, defaults, order, single slots, deep trees.
#include <memory>

#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/TalAttributeSchemaReader.h"

namespace {

TEST(Model, ANewSchemaIsEmpty)
{
    const CDASchema schema;
    EXPECT_EQ(schema.GetStorage(), nullptr);
    for (const GuList* list :
         {&schema.GetAttributeList(), &schema.GetFileList(), &schema.GetAttributeGroupList()})
        EXPECT_EQ(list->GetCount(), 0u);
    EXPECT_EQ(schema.GetCustomEntityList()->GetCount(), 0u);
}

TEST(Model, SingleSlotsGiveTheSameObjectAgain)
{
    CDASchema schema;
    EXPECT_EQ(CMemoryAllocator::GetStorageObject(&schema), CMemoryAllocator::GetStorageObject(&schema));

    FileAttribute* attribute = CMemoryAllocator::CreateAttributeObject(&schema);
    EXPECT_EQ(attribute->GetDataGenerator(), nullptr);
    CDataGenerator* generator = CMemoryAllocator::CreateDataGenerator(attribute);
    EXPECT_EQ(CMemoryAllocator::CreateDataGenerator(attribute), generator);
    EXPECT_EQ(attribute->GetDataGenerator(), generator);

    CAttributeGroup* group = CMemoryAllocator::CreateAttributeGroupObject(&schema);
    EXPECT_EQ(CMemoryAllocator::CreateDataGenerator(group), CMemoryAllocator::CreateDataGenerator(group));

    CustomEntity* entity = CMemoryAllocator::GetNewChildCustomEntity(&schema);
    EXPECT_EQ(CMemoryAllocator::CreateCreationRules(entity), CMemoryAllocator::CreateCreationRules(entity));
    CChildrenCreation* assembly = CMemoryAllocator::CreateChildrenCreation(entity);
    EXPECT_EQ(assembly->GetCreationRules(), nullptr);
    CCreationRules* rules = CMemoryAllocator::CreateCreationRulesForChildren(assembly);
    EXPECT_EQ(CMemoryAllocator::CreateCreationRulesForChildren(assembly), rules);
    EXPECT_EQ(entity->GetChildrenCreationList().GetHead()->GetObject(), assembly);
}

TEST(Model, FactoriesAndAddingSettersKeepTheOrder)
{
    CDASchema schema;
    CSingleFile* file = CMemoryAllocator::CreateFileObject(&schema);
    for (const char* name : {"c", "a", "b"}) {
        GuString extension(name);
        CMemoryAllocator::GetNewFileExtensions(file)->SetExtension(extension);
        file->SetAttributeReferenceId(name);
    }
    std::size_t i = 0;
    const auto references = file->getAllAttributeReferenceId();
    for (FileExtensions* extension : *file->GetFileExtensionsList())
        EXPECT_EQ(extension->GetExtension(), references[i++]);
    EXPECT_EQ(references[0], GuString("c"));
    EXPECT_EQ(i, 3u);

    CCreationRules* rules =
        CMemoryAllocator::CreateCreationRules(CMemoryAllocator::GetNewChildCustomEntity(&schema));
    rules->SetRule("n", "1");
    rules->SetRule("n", "2");
    GuStringArray names;
    GuStringArray values;
    values.Add("stale");
    rules->GetAllRules(names, values);
    ASSERT_EQ(values.GetSize(), 2u);
    EXPECT_EQ(names[1], GuString("n"));
    EXPECT_EQ(values[0], GuString("1"));
}

TEST(Model, NullParentsGiveNull)
{
    EXPECT_EQ(CMemoryAllocator::GetStorageObject(nullptr), nullptr);
    EXPECT_EQ(CMemoryAllocator::GetNewChildCustomEntity(nullptr), nullptr);
    EXPECT_EQ(CMemoryAllocator::CreateDataGenerator(static_cast<FileAttribute*>(nullptr)), nullptr);
    EXPECT_EQ(CMemoryAllocator::CreateAttributeFolderObject(static_cast<CAttributeFolders*>(nullptr)),
              nullptr);
}

TEST(Model, ANullAmongSubFoldersIsDestroyedLikeOneAnywhere)
{
    CDASchema schema;
    schema.GetCustomEntityList()->Add(nullptr);
    CAttributeFolders* folder = CMemoryAllocator::CreateAttributeFolderObject(
        CMemoryAllocator::CreateLoadCaseTemplateObject(CMemoryAllocator::GetNewChildCustomEntity(&schema)));
    // The list is handed out const, but it is no constant: a host can change it.
    auto& subFolders = const_cast<GuList&>(folder->GetSubFolderList());
    subFolders.Add(nullptr);
    CMemoryAllocator::CreateAttributeFolderObject(CMemoryAllocator::CreateAttributeFolderObject(folder));
    subFolders.Add(nullptr);
}

TEST(Model, AVeryDeepTreeIsDestroyedWithoutRecursion)
{
    CDASchema schema;
    CustomEntity* entity = CMemoryAllocator::GetNewChildCustomEntity(&schema);
    CAttributeFolders* folder =
        CMemoryAllocator::CreateAttributeFolderObject(CMemoryAllocator::CreateLoadCaseTemplateObject(entity));
    for (int level = 0; level < 1'000'000; ++level) {
        CMemoryAllocator::CreateAttributeFolderObject(folder);
        folder = CMemoryAllocator::CreateAttributeFolderObject(folder);
    }
}

} // namespace
