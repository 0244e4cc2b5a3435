// What a project thinks of findings.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/findings/Finding.h"

/// By identifier: how bad a finding is, or nothing when nobody wants to know of it.
using Severities = std::map<tal::FindingId, std::optional<tal::Severity>>;

/// The severity of this name, or nothing.
std::optional<tal::Severity> SeverityNamed(const std::string& name);
/// Gives the findings the severities, and leaves out those without. What follows from a finding that is left
/// out, or is worse than that one, comes back.
void ApplySeverities(const Severities& severities, std::vector<tal::Finding>& findings);
/// Puts findings back that were told with another one, of which `findings` are the rest.
std::vector<tal::Finding> WithUnfolded(std::vector<tal::Finding> findings,
                                       std::vector<tal::Finding> unfolded);
/// How many findings of each severity are only counted.
std::map<tal::Severity, std::size_t> OmittedOf(const Severities& severities,
                                               const std::map<tal::FindingId, std::size_t>& omitted);
