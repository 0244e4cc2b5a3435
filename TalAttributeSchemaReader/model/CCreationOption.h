// One option of creation rules.
#pragma once

#include <utility>
#include <vector>

#include "TalAttributeSchemaReader/model/genutl/GuStringArray.h"

/// A creation option: a name, a value and an ordered list of readers, all texts without a meaning to this
/// library. Owned by its `CCreationRules`.
class CAESCHEMASCM_API CCreationOption
{
public:
    /// @{
    /// The name of the option.
    void SetOptionName(GuString name) { m_optionName = std::move(name); }
    const GuString& GetOptionName() const { return m_optionName; }
    /// @}

    /// @{
    /// The value of the option.
    void SetOptionValue(GuString value) { m_optionValue = std::move(value); }
    const GuString& GetOptionValue() const { return m_optionValue; }
    /// @}

    /// Adds one reader.
    void SetReader(GuString name, GuString script, GuString value);
    /// Replaces the three arrays: entry i of each belongs to reader i, in the order in which they were added.
    void GetAllReaders(GuTemplateArray<GuString, GuCRTAllocator>& names,
                       GuTemplateArray<GuString, GuCRTAllocator>& scripts,
                       GuTemplateArray<GuString, GuCRTAllocator>& values) const;

private:
    struct Reader
    {
        GuString name;
        GuString script;
        GuString value;
    };

    GuString m_optionName;
    GuString m_optionValue;
    std::vector<Reader> m_readers;
};
