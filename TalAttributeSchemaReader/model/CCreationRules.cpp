#include "TalAttributeSchemaReader/model/CCreationRules.h"

void CCreationRules::SetRule(GuString name, GuString value)
{
    m_rules.emplace_back(std::move(name), std::move(value));
}

void CCreationRules::GetAllRules(GuTemplateArray<GuString, GuCRTAllocator>& names,
                                 GuTemplateArray<GuString, GuCRTAllocator>& values) const
{
    names = values = {};
    for (const auto& [name, value] : m_rules) {
        names.Add(name);
        values.Add(value);
    }
}
