// One assembly: how children are created for an entity.
#pragma once

#include <memory>
#include <utility>

#include "TalAttributeSchemaReader/model/CCreationRules.h"

/// An assembly: name, value and the creation rules of its children. Owned by its `CustomEntity`.
class CAESCHEMASCM_API CChildrenCreation
{
public:
    /// @{
    /// The identifier of the attribute definition that the children are created by.
    void SetAssemblyName(GuString name) { m_assemblyName = std::move(name); }
    const GuString& GetAssemblyName() const { return m_assemblyName; }
    /// @}

    /// @{
    /// The value that this attribute has in such a child.
    void SetAssemblyValue(GuString value) { m_assemblyValue = std::move(value); }
    const GuString& GetAssemblyValue() const { return m_assemblyValue; }
    /// @}

    /// Null when the assembly has none.
    CCreationRules* GetCreationRules() const { return m_creationRules.get(); }

private:
    friend class CMemoryAllocator;

    GuString m_assemblyName;
    GuString m_assemblyValue;
    std::unique_ptr<CCreationRules> m_creationRules;
};
