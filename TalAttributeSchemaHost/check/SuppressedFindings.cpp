#include "TalAttributeSchemaHost/check/SuppressedFindings.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

#include "TalAttributeSchemaHost/messages/FindingMessages.h"

namespace tal {

namespace {

/// What was not looked for, or not to the end, may be there all the same.
void ReportStale(const std::vector<Suppression>& suppressions, const std::string& name,
                 const CheckOptions& options, std::list<Finding>& findings)
{
    for (const Suppression& suppression : suppressions) {
        for (const Suppression::Subject& subject : suppression.subjects) {
            if (subject.used || (subject.id == FindingId::CodePage && options.codePage == 0))
                continue;
            const std::string identifier = RuleOf(subject.id).identifier;
            PlacelessFinding stale{FindingId::StaleSuppression,
                                   {},
                                   suppression.path,
                                   identifier,
                                   {},
                                   message::StaleSuppression(identifier),
                                   nullptr,
                                   std::nullopt,
                                   {},
                                   suppression.identity};
            findings.push_back(Placed(std::move(stale), name, suppression.range));
        }
    }
    SortByPlace(findings, name);
}

} // namespace

void ApplySuppressions(std::vector<Suppression>& suppressions, PlaceList& places, const std::string& name,
                       const CheckOptions& options, std::list<Finding>& findings, Causes& causes,
                       CheckResult& result)
{
    for (Suppression& suppression : suppressions) {
        suppression.range = places.Take();
        const Range& parentEnd = places.Take();
        suppression.end =
            suppression.parentEnd > 0 ? parentEnd.begin.offset : std::numeric_limits<std::size_t>::max();
    }
    result.suppressed = Suppress(findings, causes, suppressions, name);
    const bool complete = std::none_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.severity == Severity::Error;
    });
    if (complete)
        ReportStale(suppressions, name, options, findings);
}

} // namespace tal
