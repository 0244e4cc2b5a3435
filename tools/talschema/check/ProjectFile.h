// `.talschema.toml`: what a project thinks of findings.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/check/Finding.h"

/// By identifier: how bad a finding is, or nothing when nobody wants to know of it.
using Severities = std::map<tal::FindingId, std::optional<tal::Severity>>;

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
/// The severity of this name, or nothing.
std::optional<tal::Severity> SeverityNamed(const std::string& name);
/// Gives the findings the severities, and leaves out those without.
void ApplySeverities(const Severities& severities, std::vector<tal::Finding>& findings);
/// How many findings of each severity are only counted.
std::map<tal::Severity, std::size_t> OmittedOf(const Severities& severities,
                                               const std::map<tal::FindingId, std::size_t>& omitted);
