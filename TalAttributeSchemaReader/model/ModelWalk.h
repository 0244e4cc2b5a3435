// What the lists of the model hold, typed, for range-for:
//
//     for (FileAttribute& attribute : tal::Attributes(*schema))
//         attribute.SetEditable(false);
//     for (const auto& [name, value] : tal::Rules(*entity.GetCreationRules()))
//         ...
#pragma once

#include <cstddef>
#include <iterator>
#include <type_traits>
#include <utility>
#include <vector>

#include "TalAttributeSchemaReader/model/CDASchema.h"

/// Everything but the model itself, the builders and the exported functions: walks over the model, and the
/// host library.
namespace tal {

/// The objects of one list, from head to tail, without its null entries. A view: it owns nothing and is valid
/// as long as the list. Made by the functions below, which know what a list holds.
template <class T, class Pointer>
class ObjectRange
{
    using Entry = typename CGTList<Pointer>::Iterator;

public:
    /// Goes from object to object.
    class Iterator
    {
    public:
        /// @{
        /// What the standard asks of a forward iterator.
        using iterator_category = std::forward_iterator_tag;
        using value_type = std::remove_const_t<T>;
        using difference_type = std::ptrdiff_t;
        using pointer = T*;
        using reference = T&;

        explicit Iterator(Entry entry = Entry()) : m_entry(entry) { SkipNulls(); }
        T& operator*() const { return *operator->(); }
        T* operator->() const { return static_cast<T*>(*m_entry); }
        Iterator& operator++()
        {
            ++m_entry;
            SkipNulls();
            return *this;
        }
        Iterator operator++(int) { return std::exchange(*this, std::next(*this)); }
        friend bool operator==(Iterator left, Iterator right) { return left.m_entry == right.m_entry; }
        friend bool operator!=(Iterator left, Iterator right) { return !(left == right); }
        /// @}

    private:
        void SkipNulls()
        {
            while (m_entry != Entry() && !*m_entry)
                ++m_entry;
        }

        Entry m_entry;
    };

    /// The list must outlive the range.
    explicit ObjectRange(const CGTList<Pointer>& list) : m_list(&list) {}

    /// @{
    /// The objects in their order.
    Iterator begin() const { return Iterator(m_list->begin()); }
    Iterator end() const { return Iterator(); }
    /// @}

private:
    const CGTList<Pointer>* m_list;
};

namespace detail {

// The objects of a const owner are const.
template <class T, class Owner, class Pointer>
auto ObjectsOf(Owner&, const CGTList<Pointer>& list)
{
    return ObjectRange<std::conditional_t<std::is_const_v<Owner>, const T, T>, Pointer>(list);
}

// An array may be shorter than the names that it belongs to.
inline GuString TakeEntryOrEmpty(GuStringArray& array, std::size_t index)
{
    return index < array.GetSize() ? std::move(array[index]) : GuString();
}

} // namespace detail

/// The attribute definitions of a `CDASchema`.
template <class Schema>
auto Attributes(Schema& schema)
{
    return detail::ObjectsOf<FileAttribute>(schema, schema.GetAttributeList());
}

/// The file kinds of a `CDASchema`.
template <class Schema>
auto Files(Schema& schema)
{
    return detail::ObjectsOf<CSingleFile>(schema, schema.GetFileList());
}

/// The attribute groups of a `CDASchema`.
template <class Schema>
auto AttributeGroups(Schema& schema)
{
    return detail::ObjectsOf<CAttributeGroup>(schema, schema.GetAttributeGroupList());
}

/// The entity types of a `CDASchema`.
template <class Schema>
auto Entities(Schema& schema)
{
    return detail::ObjectsOf<CustomEntity>(schema, *schema.GetCustomEntityList());
}

/// The extensions of a `CSingleFile`.
template <class File>
auto Extensions(File& file)
{
    return detail::ObjectsOf<FileExtensions>(file, *file.GetFileExtensionsList());
}

/// The assemblies of a `CustomEntity`.
template <class Entity>
auto Assemblies(Entity& entity)
{
    return detail::ObjectsOf<CChildrenCreation>(entity, entity.GetChildrenCreationList());
}

/// The load case templates of a `CustomEntity`.
template <class Entity>
auto LoadCaseTemplates(Entity& entity)
{
    return detail::ObjectsOf<CLoadCaseTemplate>(entity, entity.GetLoadCaseTemplateList());
}

/// The attribute folders of a `CLoadCaseTemplate` that stand directly below it.
template <class LoadCaseTemplate>
auto Folders(LoadCaseTemplate& loadCaseTemplate)
{
    return detail::ObjectsOf<CAttributeFolders>(loadCaseTemplate, loadCaseTemplate.GetAttributeFolderList());
}

/// The attribute folders that stand directly below a `CAttributeFolders`.
template <class Folder>
auto SubFolders(Folder& folder)
{
    return detail::ObjectsOf<CAttributeFolders>(folder, folder.GetSubFolderList());
}

/// The options of a `CCreationRules`.
template <class CreationRules>
auto Options(CreationRules& rules)
{
    return detail::ObjectsOf<CCreationOption>(rules, rules.GetOptionList());
}

/// One rule of a `CCreationRules`.
struct Rule
{
    GuString name;  ///< may come again
    GuString value; ///< without a meaning to this library
};

/// One reader of a `CCreationOption`.
struct Reader
{
    GuString name;   ///< as the document has it
    GuString script; ///< likewise
    GuString value;  ///< likewise
};

/// Copies of all rules, in the order in which they were added.
inline std::vector<Rule> Rules(const CCreationRules& creationRules)
{
    GuStringArray names;
    GuStringArray values;
    creationRules.GetAllRules(names, values);
    std::vector<Rule> rules;
    rules.reserve(names.GetSize());
    for (std::size_t i = 0; i < names.GetSize(); ++i)
        rules.push_back({std::move(names[i]), detail::TakeEntryOrEmpty(values, i)});
    return rules;
}

/// Copies of all readers, in the order in which they were added.
inline std::vector<Reader> Readers(const CCreationOption& option)
{
    GuStringArray names;
    GuStringArray scripts;
    GuStringArray values;
    option.GetAllReaders(names, scripts, values);
    std::vector<Reader> readers;
    readers.reserve(names.GetSize());
    for (std::size_t i = 0; i < names.GetSize(); ++i)
        readers.push_back(
            {std::move(names[i]), detail::TakeEntryOrEmpty(scripts, i), detail::TakeEntryOrEmpty(values, i)});
    return readers;
}

} // namespace tal
