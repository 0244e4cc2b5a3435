#include "tools/talschema/check/Severities.h"

#include <iterator>
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

void ApplySeverities(const Severities& severities, std::vector<Finding>& findings)
{
    if (severities.empty())
        return;
    std::vector<Finding> kept;
    for (Finding& finding : findings) {
        ApplySeverities(severities, finding.consequences);
        const auto changed = severities.find(finding.id);
        if (changed != severities.end() && !changed->second) { // what follows from it stays
            std::move(finding.consequences.begin(), finding.consequences.end(), std::back_inserter(kept));
            continue;
        }
        if (changed != severities.end())
            finding.severity = *changed->second;
        kept.push_back(std::move(finding));
    }
    findings = std::move(kept);
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
