// How the data of an attribute definition or an attribute group is generated.
#pragma once

#include <utility>

#include "TalAttributeSchemaReader/model/genutl/GuStringArray.h"

/// A data generator: its kind (the type name) and the settings of every kind. Owned by its attribute or
/// group.
class CAESCHEMASCM_API CDataGenerator
{
public:
    /// @{
    /// The kind of the generator.
    void SetTypeName(GuString name) { m_typeName = std::move(name); }
    const GuString& GetTypeName() const { return m_typeName; }
    /// @}

    /// @{
    /// The module that the generator is in.
    void SetModuleName(GuString name) { m_moduleName = std::move(name); }
    const GuString& GetModuleName() const { return m_moduleName; }
    /// @}

    /// @{
    /// The function that generates the data.
    void SetFunctionName(GuString name) { m_functionName = std::move(name); }
    const GuString& GetFunctionName() const { return m_functionName; }
    /// @}

    /// @{
    /// The class that generates the data.
    void SetClassName(GuString name) { m_className = std::move(name); }
    const GuString& GetClassName() const { return m_className; }
    /// @}

    /// @{
    /// How the data is created.
    void SetCreationType(GuString type) { m_creationType = std::move(type); }
    const GuString& GetCreationType() const { return m_creationType; }
    /// @}

    /// @{
    /// The identifier of the entity that the data is about.
    void SetEntityID(GuString id) { m_entityId = std::move(id); }
    const GuString& GetEntityID() const { return m_entityId; }
    /// @}

    /// @{
    /// The name of the entity that the data is about.
    void SetEntityName(GuString name) { m_entityName = std::move(name); }
    const GuString& GetEntityName() const { return m_entityName; }
    /// @}

    /// Adds one resource.
    void SetResources(GuString resource) { m_resources.Add(std::move(resource)); }
    /// All resources, in the order in which they were added.
    GuTemplateArray<GuString, GuCRTAllocator> GetResources() const { return m_resources; }

private:
    GuString m_typeName;
    GuString m_moduleName;
    GuString m_functionName;
    GuString m_className;
    GuString m_creationType;
    GuString m_entityId;
    GuString m_entityName;
    GuStringArray m_resources;
};
