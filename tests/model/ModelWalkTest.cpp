// The typed walks over the model's lists.
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "TalAttributeSchemaReader/TalAttributeSchemaReader.h"

namespace {

template <class Range>
auto Walked(const Range& range)
{
    std::vector<decltype(&*range.begin())> objects;
    for (auto& object : range)
        objects.push_back(&object);
    return objects;
}

// Two new objects of `owner` come back as what they are, const from a const owner. Returns the first one.
template <class T, class Owner, class Walk>
T* ExpectWalk(Owner& owner, T* (*create)(Owner*), Walk walk)
{
    static_assert(std::is_same_v<decltype(*walk(owner).begin()), T&>);
    static_assert(std::is_same_v<decltype(*walk(std::as_const(owner)).begin()), const T&>);
    EXPECT_TRUE(Walked(walk(owner)).empty());
    T* first = create(&owner);
    T* second = create(&owner);
    EXPECT_EQ(Walked(walk(owner)), (std::vector<T*>{first, second}));
    EXPECT_EQ(Walked(walk(std::as_const(owner))), (std::vector<const T*>{first, second}));
    return first;
}

TEST(ModelWalk, EveryListGivesObjectsOfItsOwnType)
{
    using Factory = CMemoryAllocator;
    CDASchema schema;
    ExpectWalk<FileAttribute>(schema, Factory::CreateAttributeObject,
                              [](auto& owner) { return tal::Attributes(owner); });
    ExpectWalk<CAttributeGroup>(schema, Factory::CreateAttributeGroupObject,
                                [](auto& owner) { return tal::AttributeGroups(owner); });
    CSingleFile* file = ExpectWalk<CSingleFile>(schema, Factory::CreateFileObject,
                                                [](auto& owner) { return tal::Files(owner); });
    ExpectWalk<FileExtensions>(*file, Factory::GetNewFileExtensions,
                               [](auto& owner) { return tal::Extensions(owner); });

    CustomEntity* entity = ExpectWalk<CustomEntity>(schema, Factory::GetNewChildCustomEntity,
                                                    [](auto& owner) { return tal::Entities(owner); });
    ExpectWalk<CChildrenCreation>(*entity, Factory::CreateChildrenCreation,
                                  [](auto& owner) { return tal::Assemblies(owner); });
    ExpectWalk<CCreationOption>(*Factory::CreateCreationRules(entity), Factory::CreateOptionObject,
                                [](auto& owner) { return tal::Options(owner); });
    CLoadCaseTemplate* loadCaseTemplate =
        ExpectWalk<CLoadCaseTemplate>(*entity, Factory::CreateLoadCaseTemplateObject,
                                      [](auto& owner) { return tal::LoadCaseTemplates(owner); });
    CAttributeFolders* folder =
        ExpectWalk<CAttributeFolders>(*loadCaseTemplate, Factory::CreateAttributeFolderObject,
                                      [](auto& owner) { return tal::Folders(owner); });
    ExpectWalk<CAttributeFolders>(*folder, Factory::CreateAttributeFolderObject,
                                  [](auto& owner) { return tal::SubFolders(owner); });
}

TEST(ModelWalk, NullEntriesAreSkippedWhereverTheyStand)
{
    CDASchema schema;
    CGTList<CustomEntity*>& list = *schema.GetCustomEntityList();
    list.Add(nullptr);
    EXPECT_TRUE(Walked(tal::Entities(schema)).empty());
    CustomEntity* first = CMemoryAllocator::GetNewChildCustomEntity(&schema);
    list.Add(nullptr);
    list.Add(nullptr);
    CustomEntity* second = CMemoryAllocator::GetNewChildCustomEntity(&schema);
    list.Add(nullptr);
    EXPECT_EQ(Walked(tal::Entities(schema)), (std::vector<CustomEntity*>{first, second}));
}

} // namespace
