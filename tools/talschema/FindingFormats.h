// Findings for people, for programs and for code hosts.
#pragma once

#include <string>
#include <vector>

#include "tools/talschema/Findings.h"

struct CheckedFile
{
    std::string name; // as it is shown
    std::vector<Finding> findings;
};

/// How findings are shown and counted.
struct FindingStyle
{
    bool warningsAsErrors = false;
    bool coloured = false;

    Severity SeverityOf(const Finding& finding) const;
};

struct FindingCount
{
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::size_t notes = 0;
};

FindingCount Count(const std::vector<CheckedFile>& files, const FindingStyle& style);

/// One line for each finding, in the form of compilers.
std::string FindingsAsText(const CheckedFile& file, const FindingStyle& style);
/// What a rewrite does not keep: one line for each kind, at its first place.
std::string LossesAsText(const CheckedFile& file);
/// "2 errors, 1 warning and 3 notes in 4 documents", a line.
std::string Summary(const std::vector<CheckedFile>& files, const FindingStyle& style);
std::string FindingsAsJson(const std::vector<CheckedFile>& files, const FindingStyle& style);
/// SARIF 2.1.0.
std::string FindingsAsSarif(const std::vector<CheckedFile>& files, const FindingStyle& style);
