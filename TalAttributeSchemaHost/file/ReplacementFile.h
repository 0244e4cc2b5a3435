// Replacing a file whole or not at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace tal {

/// A new file in the folder of the one that it is to replace. Every operation throws `std::system_error`, or
/// another `std::runtime_error` with a reason, on failure and leaves the old file as it was.
///
/// Where the system allows, the new file has no name until it takes its place, so nobody else can get hold of
/// it and nothing is left of it whatever ends the process. While it has a name, which is in a hidden folder
/// of this user, SIGINT, SIGTERM and SIGHUP wait, as far as they are sent to this thread; so an object stays
/// in the thread that made it.
class ReplacementFile
{
public:
    /// Creates the new, empty file. When `target` is a symbolic link, the file that it points to is replaced;
    /// in a folder like `/tmp` only links of this user or of the folder's owner count.
    explicit ReplacementFile(const std::filesystem::path& target);
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;
    /// Removes the new file unless it has taken its place.
    ~ReplacementFile();

    /// True when there is an old file that this user may not write to or, where nothing keeps this user from
    /// writing, that nobody may write to.
    bool ReplacesReadOnlyFile() const;

    /// Appends to the new file.
    void Write(const void* bytes, std::size_t count);

    /// How many bytes were written.
    std::uint64_t GetSize() const { return m_size; }

    /// Reads what was written, as the new file has it, whatever has become of its name: up to `most` bytes
    /// from `offset` on. Returns how many there were; 0 at the end.
    std::size_t Read(std::uint64_t offset, void* bytes, std::size_t most) const;

    /// Puts the new file in its place, with `flush` once all that was written to it is on the disk. It gets
    /// the permissions, the owner, the group and the access list of the old file, or those of any new file.
    /// Returns what of these could not be kept, for people, or nothing. Who could not read the old file
    /// cannot read the new one, and no set-user-id, set-group-id or sticky bit comes to another owner.
    std::string Commit(bool flush);

private:
    class Name;

    std::filesystem::path m_target;
    std::unique_ptr<Name> m_name; // the new file's, while it has one
    std::intptr_t m_handle = -1;  // the system's, of the new file
    std::uint64_t m_size = 0;
};

} // namespace tal
