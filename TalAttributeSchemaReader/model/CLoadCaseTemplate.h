// One load case template of an entity.
#pragma once

#include <utility>

#include "TalAttributeSchemaReader/model/CAttributeFolders.h"

/// A load case template: a condition (name and value) and a tree of attribute folders. Owned by its
/// `CustomEntity`.
class CAESCHEMASCM_API CLoadCaseTemplate
{
public:
    /// @{
    /// The name of the condition under which the template is used.
    void SetConditionName(GuString name) { m_conditionName = std::move(name); }
    const GuString& GetConditionName() const { return m_conditionName; }
    /// @}

    /// @{
    /// The value of the condition.
    void SetConditionValue(GuString value) { m_conditionValue = std::move(value); }
    const GuString& GetConditionValue() const { return m_conditionValue; }
    /// @}

    /// Holds `CAttributeFolders`.
    const GuList& GetAttributeFolderList() const { return m_attributeFolders.Get(); }

private:
    friend class CMemoryAllocator;

    GuString m_conditionName;
    GuString m_conditionValue;
    OwningList<CAttributeFolders, GuList> m_attributeFolders;
};
