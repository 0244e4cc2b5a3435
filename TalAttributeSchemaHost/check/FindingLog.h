// The findings of one check, up to the number that the caller wants.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/check/FixProposals.h"
#include "TalAttributeSchemaHost/findings/ElementPath.h"
#include "TalAttributeSchemaHost/findings/PlacelessFinding.h"

namespace tal {

/// What a finding is about, besides its anchor.
struct About
{
    std::string subject;
    std::string suggestion = {};
};

/// Of more findings than it may keep, it keeps the first ones and the first error of each kind.
class FindingLog
{
public:
    /// Findings are about the element at which `path` stands; it must outlive the log.
    FindingLog(std::size_t mostFindings, const ElementPath& path) : m_mostFindings(mostFindings), m_path(path)
    {
    }

    /// Returns the finding, or null when it only counts. The pointer goes with the next report.
    PlacelessFinding* Report(FindingId id, Anchor anchor, About about, Sentence sentence);
    /// Counts findings that nobody can describe.
    void Omit(FindingId id, std::size_t number) { m_omitted[id] += number; }

    std::size_t GetCount() const { return m_findings.size(); }
    PlacelessFinding& operator[](std::size_t number) { return m_findings[number]; }
    /// The number of the finding that was kept last.
    std::size_t Last() const { return m_findings.size() - 1; }

    void Fix(std::vector<FixProposal> proposals);
    void ForgetFixes();

    std::vector<PlacelessFinding> Take() { return std::move(m_findings); }
    /// How many findings of each kind are not kept.
    const std::map<FindingId, std::size_t>& GetOmitted() const { return m_omitted; }

private:
    bool Keeps(FindingId id);

    std::size_t m_mostFindings;
    const ElementPath& m_path;
    std::vector<PlacelessFinding> m_findings;
    std::set<FindingId> m_errors; // that are kept
    std::map<FindingId, std::size_t> m_omitted;
};

} // namespace tal
