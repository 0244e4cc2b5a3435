#include "tools/talschema/check/Severities.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

using tal::Finding;
using tal::Severity;

std::optional<Severity> SeverityNamed(const std::string& name)
{
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        if (name == NameOf(severity))
            return severity;
    }
    return std::nullopt;
}

std::vector<Finding> WithUnfolded(std::vector<Finding> findings, std::vector<Finding> unfolded)
{
    if (unfolded.empty())
        return findings;
    const std::string document = unfolded.front().file;
    const auto isBefore = [&](const Finding& left, const Finding& right) {
        const auto key = [&](const Finding& finding) {
            return std::tuple(finding.file != document, finding.range.begin.line, finding.range.begin.column);
        };
        return key(left) < key(right);
    };
    std::sort(unfolded.begin(), unfolded.end(), isBefore);
    std::vector<Finding> merged;
    merged.reserve(findings.size() + unfolded.size());
    std::merge(std::move_iterator(findings.begin()), std::move_iterator(findings.end()),
               std::move_iterator(unfolded.begin()), std::move_iterator(unfolded.end()),
               std::back_inserter(merged), isBefore);
    return merged;
}

void ApplySeverities(const Severities& severities, std::vector<Finding>& findings)
{
    if (severities.empty())
        return;
    std::vector<Finding> kept;
    std::vector<Finding> unfolded;
    for (Finding& finding : findings) {
        const auto changed = severities.find(finding.id);
        const bool off = changed != severities.end() && !changed->second;
        if (changed != severities.end() && !off)
            finding.severity = *changed->second;
        std::vector<Finding>& following = finding.consequences;
        ApplySeverities(severities, following);
        // They are of one kind. Worse than what they follow from, they would be overlooked beside it.
        if (!following.empty() && (off || following.front().severity < finding.severity)) {
            std::move(following.begin(), following.end(), std::back_inserter(unfolded));
            following.clear();
        }
        if (!off)
            kept.push_back(std::move(finding));
    }
    findings = WithUnfolded(std::move(kept), std::move(unfolded));
}

std::map<Severity, std::size_t> OmittedOf(const Severities& severities,
                                          const std::map<tal::FindingId, std::size_t>& omitted)
{
    std::map<Severity, std::size_t> numbers;
    for (const auto& [id, number] : omitted) {
        const auto changed = severities.find(id);
        if (changed == severities.end())
            numbers[SeverityOf(RuleOf(id).kind)] += number;
        else if (changed->second)
            numbers[*changed->second] += number;
    }
    return numbers;
}
