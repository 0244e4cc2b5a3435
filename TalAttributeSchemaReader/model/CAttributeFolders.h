// One attribute folder of a load case template.
#pragma once

#include <utility>

#include "TalAttributeSchemaReader/model/OwningList.h"
#include "TalAttributeSchemaReader/model/genutl/GuList.h"
#include "TalAttributeSchemaReader/model/genutl/GuStringArray.h"

/// An attribute folder: name, references to attribute definitions, which are not resolved, and sub-folders to
/// any depth. Owned by its `CLoadCaseTemplate` or by the folder above.
class CAESCHEMASCM_API CAttributeFolders
{
public:
    /// A folder without a name, references or sub-folders.
    CAttributeFolders();
    CAttributeFolders(const CAttributeFolders&) = delete;
    CAttributeFolders& operator=(const CAttributeFolders&) = delete;
    /// Never recurses, however deep the folders are nested.
    ~CAttributeFolders();

    /// @{
    /// The name of the folder.
    void SetAttributeFolderName(GuString name) { m_attributeFolderName = std::move(name); }
    const GuString& GetAttributeFolderName() const { return m_attributeFolderName; }
    /// @}

    /// Adds one reference: the identifier of an attribute definition.
    void SetAttributeReferences(GuString reference) { m_attributeReferences.Add(std::move(reference)); }
    /// All references, in the order in which they were added.
    GuTemplateArray<GuString, GuCRTAllocator> GetAllAttributeReferences() const
    {
        return m_attributeReferences;
    }

    /// Holds `CAttributeFolders`.
    const GuList& GetSubFolderList() const { return m_subFolders.Get(); }

private:
    friend class CMemoryAllocator;

    GuString m_attributeFolderName;
    GuStringArray m_attributeReferences;
    OwningList<CAttributeFolders, GuList> m_subFolders;
};
