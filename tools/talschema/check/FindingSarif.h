// Findings for code hosts.
#pragma once

#include <string>
#include <vector>

#include "tools/talschema/check/Baseline.h"
#include "tools/talschema/check/FindingText.h"

/// What a run was, besides its findings.
struct RunFacts
{
    bool withBaseline = false;
    std::vector<AbsentEntry> absent = {};
    std::vector<std::string> failures = {}; // what could not be done, besides documents that cannot be read
};

/// SARIF 2.1.0. Columns count UTF-16 units, whatever the style says.
std::string FindingsAsSarif(const std::vector<CheckedFile>& files, const FindingStyle& style,
                            const RunFacts& run);
