// Where the application keeps its data.
#pragma once

#include <utility>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// The storage settings of a schema: three texts without a meaning to this library. Owned by its `CDASchema`.
class CAESCHEMASCM_API CStorage
{
public:
    /// @{
    /// The directory in which the application works.
    void SetWorkingDirectory(GuString directory) { m_workingDirectory = std::move(directory); }
    const GuString& GetWorkingDirectory() const { return m_workingDirectory; }
    /// @}

    /// @{
    /// The place that users share.
    void SetSharedLocation(GuString location) { m_sharedLocation = std::move(location); }
    const GuString& GetSharedLocation() const { return m_sharedLocation; }
    /// @}

    /// @{
    /// The kind of storage.
    void SetStorageType(GuString type) { m_storageType = std::move(type); }
    const GuString& GetStorageType() const { return m_storageType; }
    /// @}

private:
    GuString m_workingDirectory;
    GuString m_sharedLocation;
    GuString m_storageType;
};
