// `.talschema.toml`: what a project thinks of findings.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/findings/Finding.h"
#include "tools/talschema/check/Severities.h"

/// What a project says of one document.
struct DocumentRules
{
    Severities severities;
    std::optional<tal::Severity> failOn;
};

/// The project files that count for documents: the one that was given, or the nearest in the folders above
/// each document.
class ProjectFiles
{
public:
    /// Reads `given` for all documents, unless it is empty; without `search`, there is no other.
    ProjectFiles(const std::string& given, bool search);
    ~ProjectFiles();

    /// Throws `Trouble` when there is a mistake in the project file, with its place.
    DocumentRules RulesFor(const std::string& document);

private:
    class Project;

    const Project* ProjectOf(const std::string& document);
    const Project* Read(const std::string& file);

    bool m_search;
    const Project* m_given = nullptr;
    std::map<std::string, std::unique_ptr<Project>> m_projects; // by their files
};

/// Warnings and notes by their identifiers.
std::vector<std::string> ChangeableIdentifiers();
