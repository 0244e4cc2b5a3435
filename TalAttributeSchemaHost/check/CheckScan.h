// The passes over a document that is checked.
#pragma once

#include <cstddef>
#include <map>
#include <vector>

#include "TalAttributeSchemaHost/check/Check.h"
#include "TalAttributeSchemaHost/check/DocumentChecker.h"
#include "TalAttributeSchemaHost/check/Suppressions.h"
#include "TalAttributeSchemaHost/findings/PlacelessFinding.h"
#include "TalAttributeSchemaHost/platform/CodePage.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/scan/SourceText.h"
#include "TalAttributeSchemaReader/dom/XercesGuards.h"

namespace tal {

/// What a scan leaves to be looked up.
struct Scanned
{
    std::vector<PlacelessFinding> findings;
    std::map<FindingId, std::size_t> omitted;
    ObjectTags objects;
    std::vector<Suppression> suppressions;
};

/// `codePage` and `listener` may be null.
Scanned ScanForFindings(const XercesSession& session, const Document& document, const CodePage* codePage,
                        const CheckOptions& options, DocumentVisitor* listener = nullptr);

/// The parser decodes ahead, so it gives up long before it comes to a byte that is not valid. Scanned up to
/// that byte, a document that is at fault otherwise gives the same report.
void LookForInvalidByte(Scanned& scanned, const XercesSession& session, const Document& document,
                        const CodePage* codePage, const CheckOptions& options, const SourceText& source);

} // namespace tal
