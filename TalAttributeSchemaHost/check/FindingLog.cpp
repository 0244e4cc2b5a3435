#include "TalAttributeSchemaHost/check/FindingLog.h"

namespace tal {

PlacelessFinding* FindingLog::Report(FindingId id, Anchor anchor, About about, Sentence sentence)
{
    if (!Keeps(id)) {
        ++m_omitted[id];
        return nullptr;
    }
    m_findings.push_back({id,
                          std::move(anchor),
                          m_path.Text(),
                          std::move(about.subject),
                          std::move(about.suggestion),
                          std::move(sentence),
                          nullptr,
                          std::nullopt,
                          {},
                          m_path.Identity()});
    return &m_findings.back();
}

bool FindingLog::Keeps(FindingId id)
{
    const bool firstError = SeverityOf(RuleOf(id).kind) == Severity::Error && m_errors.insert(id).second;
    return firstError || m_findings.size() < m_mostFindings;
}

void FindingLog::Fix(std::vector<FixProposal> proposals)
{
    for (FixProposal& proposal : proposals)
        m_findings[proposal.finding].edits = std::move(proposal.edits);
}

void FindingLog::ForgetFixes()
{
    for (PlacelessFinding& finding : m_findings)
        finding.edits.clear();
}

} // namespace tal
