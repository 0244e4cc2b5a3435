// Replacing a file whole or not at all.
#pragma once

#include <filesystem>

/// A new file beside the one that it is to replace. Every operation throws `std::system_error` on failure and
/// leaves the old file as it was.
class ReplacementFile
{
public:
    /// Creates the new, empty file. When `target` is a symbolic link, the file that it points to is replaced.
    explicit ReplacementFile(const std::filesystem::path& target);
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;
    /// Removes the new file unless it has taken its place.
    ~ReplacementFile();

    const std::filesystem::path& GetPath() const { return m_path; }

    /// Puts the new file in its place once all that was written to it is on the disk. It gets the permissions
    /// of the old file, or those of any new file.
    void Commit();

private:
    std::filesystem::file_status m_old;
    std::filesystem::path m_target;
    std::filesystem::path m_path; // empty once in its place
};
