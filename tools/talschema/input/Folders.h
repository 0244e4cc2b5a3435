// The documents in folders.
#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

/// Which files of a folder are documents. Patterns as in Glob.h; those with `/` begin in that folder.
struct FolderFilter
{
    std::vector<std::string> include; // `*.xml` when there is none
    std::vector<std::string> exclude; // files, and folders with all that is in them
};

/// The options of a command that takes folders.
void AddFolderFilter(CLI::App& command, FolderFilter& filter);

/// A file, or why it cannot be found out which files there are.
struct FoundFile
{
    std::string name;
    std::string failure; // empty for a file
};

/// What to look at in the order of the command line: a folder stands for the files in it and in its folders
/// that the filter takes, in the order of their names; hidden folders and links to folders are left out.
std::vector<FoundFile> FilesOf(const std::vector<std::string>& arguments, const FolderFilter& filter);
