// Findings that are known already.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tools/talschema/check/FindingText.h"

/// Findings of one kind at one element, or about one value of it.
struct BaselineEntry
{
    std::string identifier;
    std::string path;
    std::string subject;
    std::size_t count = 1;
};

/// What a baseline knows that does not occur any more.
struct AbsentEntry
{
    std::string document; // as it is called from here
    BaselineEntry entry;
};

class Baseline
{
public:
    /// Throws `Trouble` when the file cannot be read or is none.
    explicit Baseline(const std::string& file);

    /// Moves the findings that are known to `CheckedFile::known`. A finding is known when there is an entry
    /// with its identifier, its subject and the identity of its element; else, when there is one for another
    /// element of these names, whose own findings do not occur.
    void Apply(CheckedFile& file);

    /// Those of the documents that were checked, or that are not there any more.
    std::vector<AbsentEntry> Absent() const;

private:
    std::filesystem::path m_folder;
    std::map<std::string, std::vector<BaselineEntry>> m_entries;
    std::map<std::string, std::vector<BaselineEntry>> m_absent; // of the documents that were checked
};

/// A note for each entry that does not occur any more.
std::string AbsentAsText(const std::string& file, const std::vector<AbsentEntry>& absent);

/// What the files hold against themselves, in an order of its own, for `file` to know it.
std::string BaselineOf(const std::vector<CheckedFile>& files, const std::string& file);
