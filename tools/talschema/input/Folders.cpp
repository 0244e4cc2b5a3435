#include "tools/talschema/input/Folders.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "tools/talschema/input/Glob.h"

namespace fs = std::filesystem;

namespace {

bool MatchesOne(const std::vector<std::string>& patterns, const std::string& path)
{
    return std::any_of(patterns.begin(), patterns.end(),
                       [&](const std::string& pattern) { return FileGlobMatches(pattern, path); });
}

/// Looks through one folder of the command line.
class FolderWalk
{
public:
    FolderWalk(fs::path folder, const FolderFilter& filter) : m_folder(std::move(folder)), m_filter(filter)
    {
        if (m_filter.include.empty())
            m_filter.include = {"*.xml"};
    }

    std::vector<FoundFile> Files()
    {
        Enter(m_folder, "");
        if (m_files.empty()) { // a misspelt pattern must not look like a clean folder
            std::string patterns;
            for (const std::string& pattern : m_filter.include)
                patterns += (patterns.empty() ? "\"" : ", \"") + pattern + '"';
            m_files.push_back({m_folder.u8string(), "no file in this folder matches " + patterns});
        }
        return std::move(m_files);
    }

private:
    void Enter(const fs::path& folder, const std::string& prefix)
    {
        std::error_code error;
        std::vector<fs::directory_entry> entries;
        for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
            entries.push_back(*at);
        if (error) {
            m_files.push_back({folder.u8string(), error.message()});
            return;
        }
        std::sort(entries.begin(), entries.end());
        for (const fs::directory_entry& entry : entries)
            Take(entry, prefix + entry.path().filename().u8string());
    }

    /// `path` begins in the folder of the command line.
    void Take(const fs::directory_entry& entry, const std::string& path)
    {
        if (MatchesOne(m_filter.exclude, path))
            return;
        std::error_code error; // what cannot be looked at is left to whoever opens it
        if (!entry.is_directory(error)) {
            if (MatchesOne(m_filter.include, path))
                m_files.push_back({entry.path().lexically_normal().u8string(), ""});
        } else if (!entry.is_symlink(error) && entry.path().filename().u8string()[0] != '.') {
            Enter(entry.path(), path + "/");
        }
    }

    fs::path m_folder;
    FolderFilter m_filter;
    std::vector<FoundFile> m_files;
};

} // namespace

void AddFolderFilter(CLI::App& command, FolderFilter& filter)
{
    command
        .add_option("--include", filter.include,
                    "Take these files of folders, in place of *.xml; may be given several times")
        ->type_name("GLOB")
        ->allow_extra_args(false);
    command
        .add_option("--exclude", filter.exclude,
                    "Leave out these files and folders of folders; may be given several times")
        ->type_name("GLOB")
        ->allow_extra_args(false);
}

std::vector<FoundFile> FilesOf(const std::vector<std::string>& arguments, const FolderFilter& filter)
{
    std::vector<FoundFile> files;
    for (const std::string& argument : arguments) {
        std::error_code error;
        if (argument == "-" || !fs::is_directory(fs::u8path(argument), error)) {
            files.push_back({argument, ""});
            continue;
        }
        const std::vector<FoundFile> found = FolderWalk(fs::u8path(argument), filter).Files();
        files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}
