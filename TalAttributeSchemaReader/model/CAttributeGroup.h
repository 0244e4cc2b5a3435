// A group of attribute definitions.
#pragma once

#include <memory>
#include <utility>

#include "TalAttributeSchemaReader/model/CDataGenerator.h"

/// An attribute group: identifier, label and references to its members, which are not resolved. Owned by its
/// `CDASchema`.
class CAESCHEMASCM_API CAttributeGroup
{
public:
    /// @{
    /// The identifier of the group.
    void SetAttributeId(GuString id) { m_attributeId = std::move(id); }
    const GuString& GetAttributeId() const { return m_attributeId; }
    /// @}

    /// @{
    /// What people see.
    void SetAttributeLabel(GuString label) { m_attributeLabel = std::move(label); }
    const GuString& GetAttributeLabel() const { return m_attributeLabel; }
    /// @}

    /// Adds one reference: the identifier of an attribute definition.
    void SetAttributeReference(GuString reference) { m_attributeReferences.Add(std::move(reference)); }
    /// All references, in the order in which they were added.
    GuTemplateArray<GuString, GuCRTAllocator> GetAllAttributeReferences() const
    {
        return m_attributeReferences;
    }

    /// Null when the group has none.
    CDataGenerator* GetDataGenerator() const { return m_dataGenerator.get(); }

private:
    friend class CMemoryAllocator;

    GuString m_attributeId;
    GuString m_attributeLabel;
    GuStringArray m_attributeReferences;
    std::unique_ptr<CDataGenerator> m_dataGenerator;
};
