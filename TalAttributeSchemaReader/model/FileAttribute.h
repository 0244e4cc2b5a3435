// One attribute definition.
#pragma once

#include <memory>
#include <utility>

#include "TalAttributeSchemaReader/model/CDataGenerator.h"

/// An attribute definition: identifier, name, default value, value range, data type and flags. All values are
/// text as the document has it; none is checked. Owned by its `CDASchema`.
class CAESCHEMASCM_API FileAttribute
{
public:
    /// @{
    /// The identifier by which file kinds, groups, entity types and folders refer to the attribute.
    void SetID(GuString id) { m_id = std::move(id); }
    const GuString& GetID() const { return m_id; }
    /// @}

    /// @{
    /// What people see; the document calls it "Label".
    void SetName(GuString name) { m_name = std::move(name); }
    GuString GetName() const { return m_name; }
    /// @}

    /// @{
    /// The default value.
    void SetValue(GuString value) { m_value = std::move(value); }
    GuString GetValue() const { return m_value; }
    /// @}

    /// @{
    /// The lower end of the range of values; empty when there is none.
    void SetMinValue(GuString value) { m_minValue = std::move(value); }
    GuString GetMinValue() const { return m_minValue; }
    /// @}

    /// @{
    /// The upper end of the range of values; empty when there is none.
    void SetMaxValue(GuString value) { m_maxValue = std::move(value); }
    GuString GetMaxValue() const { return m_maxValue; }
    /// @}

    /// @{
    /// The name of the data type.
    void SetDataType(GuString type) { m_dataType = std::move(type); }
    GuString GetDataType() const { return m_dataType; }
    /// @}

    /// @{
    /// Whether people see the attribute.
    void SetDisplayable(bool displayable) { m_displayable = displayable; }
    bool GetDisplayable() const { return m_displayable; }
    /// @}

    /// @{
    /// Whether people may change its value.
    void SetEditable(bool editable) { m_editable = editable; }
    bool GetEditable() const { return m_editable; }
    /// @}

    /// @{
    /// Whether a change of the value creates a new version.
    void SetMetadataChangeCreateVersionValue(bool create) { m_metadataChangeCreateVersion = create; }
    bool GetMetaDataChangeCreateVersionValue() const { return m_metadataChangeCreateVersion; }
    /// @}

    /// Null when the attribute has none.
    CDataGenerator* GetDataGenerator() const { return m_dataGenerator.get(); }

    /// Whether the attribute counts when objects are compared.
    bool m_useInComparison = false;

private:
    friend class CMemoryAllocator;

    GuString m_id;
    GuString m_name;
    GuString m_value;
    GuString m_minValue;
    GuString m_maxValue;
    GuString m_dataType;
    bool m_displayable = false;
    bool m_editable = false;
    bool m_metadataChangeCreateVersion = false;
    std::unique_ptr<CDataGenerator> m_dataGenerator;
};
