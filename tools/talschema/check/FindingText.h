// Findings for people.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/check/Check.h"

struct CheckedFile
{
    std::string name; // as it is shown
    tal::CheckResult result = {};
    std::size_t fixed = 0;                             // findings that are not there any more, or need not be
    std::vector<tal::Finding> known = {};              // to a baseline; not in `result`
    tal::Severity failOn = tal::Severity::Warning;     // what is as bad fails
    std::map<tal::Severity, std::size_t> omitted = {}; // findings that are only counted
};

/// What a column counts.
enum class ColumnUnit
{
    Characters,
    Utf16,
    Bytes
};

/// How findings are shown and counted.
struct FindingStyle
{
    bool warningsAsErrors = false;
    bool dryRun = false; // what is fixed is still there
    bool coloured = false;
    bool source = false; // show the lines in which findings stand, as far as they were kept
    ColumnUnit columns = ColumnUnit::Characters;

    tal::Severity SeverityOf(const tal::Finding& finding) const { return SeverityOf(finding.severity); }
    tal::Severity SeverityOf(tal::Severity severity) const;
    std::size_t ColumnOf(const tal::Position& position) const;
};

struct FindingCount
{
    std::size_t documents = 0;  // that were looked at
    std::size_t unreadable = 0; // files that could not be
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::size_t notes = 0;
    std::size_t omitted = 0; // of those
    std::size_t fixed = 0;
    std::size_t known = 0;
    std::size_t suppressed = 0;
};

/// Without what could not be looked at.
FindingCount Count(const std::vector<CheckedFile>& files, const FindingStyle& style);

/// One line, `file:line:column: severity: path: message [identifier]`. Long values are cut.
std::string FindingAsLine(const tal::Finding& finding, const FindingStyle& style);
/// A line for each finding in the form of compilers, and below it the source when that is wanted.
std::string FindingsAsText(const CheckedFile& file, const FindingStyle& style);
/// What keeps a document from being read: a line for each finding, `file:line:column: error: message`.
std::string ErrorsAsText(const std::vector<tal::Finding>& findings);
/// What a rewrite does not keep: one line for each kind, at its first place, with names. `omitted` says how
/// many more there are of each kind.
std::string LossesAsText(const std::string& file, const std::vector<tal::Finding>& findings,
                         const std::map<tal::FindingId, std::size_t>& omitted);
/// True when a finding is so bad that the file fails.
bool Fails(const CheckedFile& file, const FindingStyle& style);
/// "3 of 6 findings left out ..."; part of a line.
std::string OmittedAsText(const FindingCount& count);
/// "2 errors, 1 warning and 3 notes in 4 documents; 1 fixed, 5 known", a line, and how many of them are not
/// shown.
std::string Summary(const std::vector<CheckedFile>& files, const FindingStyle& style);
