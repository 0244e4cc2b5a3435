// One kind of file.
#pragma once

#include <utility>

#include "TalAttributeSchemaReader/model/FileExtensions.h"
#include "TalAttributeSchemaReader/model/OwningList.h"
#include "TalAttributeSchemaReader/model/genutl/CGTList.h"
#include "TalAttributeSchemaReader/model/genutl/GuStringArray.h"

/// A file kind: identifier, name, type, extensions and references to the attribute definitions that such a
/// file carries, which are not resolved. Owned by its `CDASchema`.
class CAESCHEMASCM_API CSingleFile
{
public:
    /// @{
    /// The identifier by which entity types refer to the file kind.
    void SetUniqueId(GuString id) { m_uniqueId = std::move(id); }
    const GuString& GetUniqueId() const { return m_uniqueId; }
    /// @}

    /// @{
    /// What people see.
    void SetName(GuString name) { m_name = std::move(name); }
    GuString GetName() const { return m_name; }
    /// @}

    /// @{
    /// The type of the file, a text without a meaning to this library.
    void SetFileType(GuString type) { m_fileType = std::move(type); }
    GuString GetFileType() const { return m_fileType; }
    /// @}

    /// @{
    /// Whether a change of the file creates a new version.
    void SetOnChangeCreateVersionValue(bool create) { m_onChangeCreateVersion = create; }
    bool GetOnChangeCreateVersionValue() const { return m_onChangeCreateVersion; }
    /// @}

    /// @{
    /// The file's own list, never null. The file owns what stands in it: `TakeFirst` hands an extension to
    /// the caller, who deletes it or gives it to another file with `Add`; `Add` hands one to the file.
    CGTList<FileExtensions*>* GetFileExtensionsList() { return &m_extensions.Get(); }
    const CGTList<FileExtensions*>* GetFileExtensionsList() const { return &m_extensions.Get(); }
    /// @}

    /// Adds one reference: the identifier of an attribute definition.
    void SetAttributeReferenceId(GuString reference) { m_attributeReferenceIds.Add(std::move(reference)); }
    /// All references, in the order in which they were added.
    GuTemplateArray<GuString, GuCRTAllocator> getAllAttributeReferenceId() const
    {
        return m_attributeReferenceIds;
    }

private:
    friend class CMemoryAllocator;

    GuString m_uniqueId;
    GuString m_name;
    GuString m_fileType;
    bool m_onChangeCreateVersion = false;
    OwningList<FileExtensions, CGTList<FileExtensions*>> m_extensions;
    GuStringArray m_attributeReferenceIds;
};
