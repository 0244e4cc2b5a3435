#include "TalAttributeSchemaHost/check/SuppressionComments.h"

#include <string>

#include "TalAttributeSchemaHost/messages/FindingMessages.h"
#include "TalAttributeSchemaHost/text/NearNames.h"

namespace tal {

void SuppressionComments::Read(std::string_view comment, std::size_t markup, std::uint64_t depth)
{
    ParsedSuppression parsed = ParseSuppression(comment);
    if (!parsed.isSuppression)
        return;
    ReportUnknown(parsed, markup);
    if (parsed.suppression.subjects.empty())
        return;
    parsed.suppression.comment = markup;
    parsed.suppression.path = m_path.Text();
    parsed.suppression.identity = m_path.Identity();
    m_open.push_back({m_suppressions.size(), depth});
    m_suppressions.push_back(std::move(parsed.suppression));
}

void SuppressionComments::ReportUnknown(const ParsedSuppression& parsed, std::size_t markup)
{
    const Anchor anchor = {AnchorKind::WholeMarkup, markup};
    if (!parsed.unknown.empty()) {
        const About about = {parsed.unknown, NearestName(parsed.unknown, SuppressionWords())};
        m_log.Report(FindingId::UnknownSuppression, anchor, about,
                     message::UnknownSuppression(about.subject, about.suggestion));
    }
    for (const std::string& identifier : parsed.unknownIdentifiers) {
        const About about = {identifier, NearestName(identifier, SuppressibleIdentifiers())};
        m_log.Report(FindingId::UnknownSuppression, anchor, about,
                     message::UnknownIdentifier(about.subject, about.suggestion));
    }
}

} // namespace tal
