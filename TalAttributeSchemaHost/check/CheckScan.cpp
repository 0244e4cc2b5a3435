#include "TalAttributeSchemaHost/check/CheckScan.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <utility>

#include "TalAttributeSchemaHost/check/CheckBytes.h"
#include "TalAttributeSchemaHost/check/DocumentTree.h"
#include "TalAttributeSchemaHost/messages/DocumentMessages.h"
#include "TalAttributeSchemaHost/scan/TwoVisitors.h"

namespace tal {

namespace {

// Beyond this many units, and as many for each byte of the document, its tree may be too large to be made.
constexpr std::uint64_t kManyUnits = std::uint64_t{4} * 1024 * 1024;
constexpr std::uint64_t kManyUnitsPerByte = 8;

/// The report with which the parser gave up, or null.
PlacelessFinding* FatalIn(std::vector<PlacelessFinding>& findings)
{
    const auto found = std::find_if(findings.rbegin(), findings.rend(), [](const PlacelessFinding& finding) {
        return finding.id == FindingId::NotWellFormed;
    });
    return found == findings.rend() ? nullptr : &*found;
}

} // namespace

Scanned ScanForFindings(const XercesSession& session, const Document& document, const CodePage* codePage,
                        const CheckOptions& options, DocumentVisitor* listener)
{
    DocumentChecker checker(codePage, options);
    if (listener) {
        TwoVisitors both(checker, *listener);
        ScanAsRead(session, document, both);
    } else {
        ScanAsRead(session, document, checker);
    }
    std::vector<PlacelessFinding> findings = checker.TakeFindings();
    return {std::move(findings), checker.GetOmitted(), checker.TakeObjects(), checker.TakeSuppressions()};
}

void LookForInvalidByte(Scanned& scanned, const XercesSession& session, const Document& document,
                        const CodePage* codePage, const CheckOptions& options, const SourceText& source)
{
    PlacelessFinding* const fatal = FatalIn(scanned.findings);
    if (!fatal || !source.InvalidByte())
        return;
    const std::size_t byte = *source.InvalidByte();
    Document beginning = document;
    beginning.bytes = document.bytes.substr(0, byte);
    Scanned again = ScanForFindings(session, beginning, codePage, options);
    PlacelessFinding* const end = FatalIn(again.findings);
    if (!end)
        return;
    const auto key = [](const PlacelessFinding& finding) {
        return std::tie(finding.subject, finding.anchor.number, finding.anchor.column);
    };
    if (key(*fatal) == key(*end))
        return;
    const auto value = static_cast<unsigned char>(document.bytes[byte]);
    end->id = FindingId::InvalidByte;
    end->anchor = {AnchorKind::Byte, byte};
    end->subject = message::HexNumber(value);
    end->sentence = message::BadByte(end->subject, source.Encoding());
    scanned = std::move(again);
}

void ScanAsRead(const XercesSession& session, const Document& document, DocumentVisitor& visitor)
{
    const std::uint64_t delivered = ScanDocument(document, visitor);
    if (delivered > kManyUnits + kManyUnitsPerByte * document.bytes.size() &&
        DocumentTree(session, document).IsExceeded())
        visitor.OnProblem(Problem::Expansion, {}, {});
}

} // namespace tal
