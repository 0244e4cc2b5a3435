// One entity type.
#pragma once

#include <memory>
#include <utility>

#include "TalAttributeSchemaReader/model/CChildrenCreation.h"
#include "TalAttributeSchemaReader/model/CLoadCaseTemplate.h"

/// An entity type: type name, script, references to the file kinds and attribute definitions that belong to
/// it, which are not resolved, creation rules, assemblies and load case templates. Owned by its `CDASchema`.
class CAESCHEMASCM_API CustomEntity
{
public:
    /// @{
    /// The name of the type.
    void SetTypeName(GuString name) { m_typeName = std::move(name); }
    GuString GetTypeName() const { return m_typeName; }
    /// @}

    /// @{
    /// The script that belongs to the type.
    void SetScript(GuString script) { m_script = std::move(script); }
    GuString GetScript() const { return m_script; }
    /// @}

    /// Adds one reference: the identifier of an attribute definition.
    void SetAttributeReferenceId(GuString reference) { m_attributeReferenceIds.Add(std::move(reference)); }
    /// All references, in the order in which they were added.
    GuTemplateArray<GuString, GuCRTAllocator> GetAllAttributeReferenceId() const
    {
        return m_attributeReferenceIds;
    }

    /// Adds one reference: the identifier of a file kind.
    void SetFileReferenceId(GuString reference) { m_fileReferenceIds.Add(std::move(reference)); }
    /// All references, in the order in which they were added.
    GuTemplateArray<GuString, GuCRTAllocator> GetAllFileReferenceId() const { return m_fileReferenceIds; }

    /// Null when the entity has none.
    CCreationRules* GetCreationRules() const { return m_creationRules.get(); }
    /// Holds `CChildrenCreation`.
    const GuList& GetChildrenCreationList() const { return m_childrenCreations.Get(); }
    /// Holds `CLoadCaseTemplate`.
    const GuList& GetLoadCaseTemplateList() const { return m_loadCaseTemplates.Get(); }

private:
    friend class CMemoryAllocator;

    GuString m_typeName;
    GuString m_script;
    GuStringArray m_attributeReferenceIds;
    GuStringArray m_fileReferenceIds;
    std::unique_ptr<CCreationRules> m_creationRules;
    OwningList<CChildrenCreation, GuList> m_childrenCreations;
    OwningList<CLoadCaseTemplate, GuList> m_loadCaseTemplates;
};
