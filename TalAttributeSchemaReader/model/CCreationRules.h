// The creation rules of an entity type or of an assembly.
#pragma once

#include <utility>
#include <vector>

#include "TalAttributeSchemaReader/model/CCreationOption.h"
#include "TalAttributeSchemaReader/model/OwningList.h"
#include "TalAttributeSchemaReader/model/genutl/GuList.h"

/// Creation rules: ordered pairs of name and value, where a name may come again, and options. Owned by its
/// `CustomEntity` or `CChildrenCreation`.
class CAESCHEMASCM_API CCreationRules
{
public:
    /// Adds one rule.
    void SetRule(GuString name, GuString value);
    /// Replaces both arrays: entry i of each belongs to rule i, in the order in which they were added.
    void GetAllRules(GuTemplateArray<GuString, GuCRTAllocator>& names,
                     GuTemplateArray<GuString, GuCRTAllocator>& values) const;

    /// Holds `CCreationOption`.
    const GuList& GetOptionList() const { return m_options.Get(); }

private:
    friend class CMemoryAllocator;

    std::vector<std::pair<GuString, GuString>> m_rules;
    OwningList<CCreationOption, GuList> m_options;
};
