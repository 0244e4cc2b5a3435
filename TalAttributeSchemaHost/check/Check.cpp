#include "TalAttributeSchemaHost/check/Check.h"

#include <algorithm>
#include <istream>
#include <iterator>
#include <list>
#include <memory>
#include <system_error>
#include <utility>

#include "TalAttributeSchemaHost/check/CheckBytes.h"
#include "TalAttributeSchemaHost/check/CheckScan.h"
#include "TalAttributeSchemaHost/check/PlacedFindings.h"
#include "TalAttributeSchemaHost/check/SuppressedFindings.h"
#include "TalAttributeSchemaHost/messages/DocumentMessages.h"
#include "TalAttributeSchemaHost/scan/FileBytes.h"
#include "TalAttributeSchemaHost/scan/HostSession.h"
#include "TalAttributeSchemaHost/scan/Places.h"

namespace fs = std::filesystem;

namespace tal {

CheckResult CheckBytes(const XercesSession& session, const Document& document, const std::string& name,
                       const CheckOptions& options, DocumentVisitor* listener)
{
    std::unique_ptr<CodePage> codePage;
    if (options.codePage != 0)
        codePage = std::make_unique<CodePage>(options.codePage);
    CheckResult result;
    Scanned scanned = ScanForFindings(session, document, codePage.get(), options, listener);
    if (scanned.findings.empty() && scanned.objects.empty() && scanned.suppressions.empty()) {
        result.omitted = std::move(scanned.omitted);
        return result;
    }
    const SourceText source(document.bytes);
    result.places = PlacesOf(scanned.objects, source);
    LookForInvalidByte(scanned, session, document, codePage.get(), options, source);
    result.omitted = std::move(scanned.omitted);
    PlaceList places(scanned, source);
    if (options.keepLines)
        result.lines = LinesOf(source, places.All());
    Causes causes;
    std::list<Finding> findings = Placed(scanned.findings, places, name, causes);
    SortByPlace(findings, name);
    if (!scanned.suppressions.empty())
        ApplySuppressions(scanned.suppressions, places, name, options, findings, causes, result);
    Fold(findings, causes);
    result.findings.assign(std::move_iterator(findings.begin()), std::move_iterator(findings.end()));
    return result;
}

Finding WholeDocument(FindingId id, const std::string& name, Sentence sentence)
{
    PlacelessFinding finding{id, {}, {}, name, {}, std::move(sentence), nullptr, std::nullopt, {}, {}};
    return Placed(std::move(finding), name, {});
}

Finding FileFailure(const std::string& name, const std::error_code& error)
{
    return WholeDocument(FindingId::UnreadableFile, name, message::FileFailed(FailureText(error)));
}

CheckResult CheckDocument(const fs::path& file, const CheckOptions& options)
{
    const std::string name = file.u8string();
    CheckResult result;
    UseFile(
        file, name, [&](const std::string& bytes) { result = CheckText(bytes, name, options); },
        [&](Finding finding) { result.findings = {std::move(finding)}; });
    return result;
}

CheckResult CheckText(std::string_view bytes, const std::string& name, const CheckOptions& options)
{
    CheckResult result;
    const auto failed = [&](Finding finding) { result.findings = {std::move(finding)}; };
    SayWhenMemoryRunsOut(
        name,
        [&] {
            const HostSession session;
            if (!session.IsOpen()) {
                failed(
                    WholeDocument(FindingId::SystemFailure, name, "the XML library cannot be initialised"));
                return;
            }
            try {
                result =
                    CheckBytes(session.Get(), {bytes, AbsolutePath(fs::u8path(name)), options.allowExternal},
                               name, options);
            } catch (const std::system_error&) {
                failed(WholeDocument(FindingId::SystemFailure, name,
                                     message::UnknownCodePage(options.codePage)));
            }
        },
        failed);
    return result;
}

CheckResult CheckStream(std::istream& stream, const std::string& name, const CheckOptions& options)
{
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    return CheckText(bytes, name, options);
}

bool IsUnreadable(const std::vector<Finding>& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& finding) { return finding.severity == Severity::Error; });
}

} // namespace tal
