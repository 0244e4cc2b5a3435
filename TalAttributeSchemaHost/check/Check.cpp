#include "TalAttributeSchemaHost/check/Check.h"

#include <algorithm>
#include <istream>
#include <iterator>
#include <limits>
#include <list>
#include <memory>
#include <optional>
#include <system_error>
#include <tuple>
#include <utility>

#include "TalAttributeSchemaHost/check/CheckBytes.h"
#include "TalAttributeSchemaHost/check/DocumentChecker.h"
#include "TalAttributeSchemaHost/check/DocumentMessages.h"
#include "TalAttributeSchemaHost/check/DocumentTree.h"
#include "TalAttributeSchemaHost/check/FindingMessages.h"
#include "TalAttributeSchemaHost/check/Suppressions.h"
#include "TalAttributeSchemaHost/scan/FileBytes.h"
#include "TalAttributeSchemaHost/scan/HostSession.h"
#include "TalAttributeSchemaHost/scan/Places.h"

namespace fs = std::filesystem;

namespace tal {

namespace {

using Placeless = std::vector<PlacelessFinding>;

/// What a scan leaves to be looked up.
struct Scanned
{
    Placeless findings;
    std::map<FindingId, std::size_t> omitted;
    ObjectTags objects;
    std::vector<Suppression> suppressions;
};

// Beyond this many units, and as many for each byte of the document, its tree may be too large to be made.
constexpr std::uint64_t kManyUnits = std::uint64_t{4} * 1024 * 1024;
constexpr std::uint64_t kManyUnitsPerByte = 8;

/// Tells two visitors, one after the other.
class TwoVisitors final : public DocumentVisitor
{
public:
    TwoVisitors(DocumentVisitor& first, DocumentVisitor& second) : m_first(first), m_second(second) {}

    void OnProblem(Problem problem, const GuString& text, const Anchor& anchor) override
    {
        m_first.OnProblem(problem, text, anchor);
        m_second.OnProblem(problem, text, anchor);
    }
    void OnExternalReference(const GuString& entity, const GuString& target, const Anchor& anchor) override
    {
        m_first.OnExternalReference(entity, target, anchor);
        m_second.OnExternalReference(entity, target, anchor);
    }
    void OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                        std::size_t markup) override
    {
        m_first.OnStartElement(name, attributes, markup);
        m_second.OnStartElement(name, attributes, markup);
    }
    void OnEndElement(std::size_t markup) override
    {
        m_first.OnEndElement(markup);
        m_second.OnEndElement(markup);
    }
    void OnText(const Anchor& anchor) override
    {
        m_first.OnText(anchor);
        m_second.OnText(anchor);
    }
    void OnStartEntity(const XMLCh* name, std::size_t markup) override
    {
        m_first.OnStartEntity(name, markup);
        m_second.OnStartEntity(name, markup);
    }
    void OnEndEntity() override
    {
        m_first.OnEndEntity();
        m_second.OnEndEntity();
    }
    void OnComment(const XMLCh* text, std::size_t markup) override
    {
        m_first.OnComment(text, markup);
        m_second.OnComment(text, markup);
    }

private:
    DocumentVisitor& m_first;
    DocumentVisitor& m_second;
};

Scanned Scan(const XercesSession& session, const Document& document, const CodePage* codePage,
             const CheckOptions& options, DocumentVisitor* listener = nullptr)
{
    DocumentChecker checker(codePage, options.maxFindings, options.keepPlaces);
    if (listener) {
        TwoVisitors both(checker, *listener);
        ScanAsRead(session, document, both);
    } else {
        ScanAsRead(session, document, checker);
    }
    Placeless findings = checker.TakeFindings();
    return {std::move(findings), checker.GetOmitted(), checker.TakeObjects(), checker.TakeSuppressions()};
}

/// The report with which the parser gave up, or null.
PlacelessFinding* FatalIn(Placeless& findings)
{
    const auto found = std::find_if(findings.rbegin(), findings.rend(), [](const PlacelessFinding& finding) {
        return finding.id == FindingId::NotWellFormed;
    });
    return found == findings.rend() ? nullptr : &*found;
}

/// The parser decodes ahead, so it gives up long before it comes to a byte that is not valid. Scanned up to
/// that byte, a document that is at fault otherwise gives the same report.
void LookForInvalidByte(Scanned& scanned, const XercesSession& session, const Document& document,
                        const CodePage* codePage, const CheckOptions& options, const SourceText& source)
{
    PlacelessFinding* const fatal = FatalIn(scanned.findings);
    if (!fatal || !source.InvalidByte())
        return;
    const std::size_t byte = *source.InvalidByte();
    Document beginning = document;
    beginning.bytes = document.bytes.substr(0, byte);
    Scanned again = Scan(session, beginning, codePage, options);
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

/// The ranges of all anchors, in the order in which `Take` gives them out again.
class PlaceList
{
public:
    PlaceList(const Scanned& scanned, const SourceText& source)
    {
        std::vector<const Anchor*> anchors;
        for (const PlacelessFinding& finding : scanned.findings) {
            anchors.push_back(&finding.anchor);
            if (finding.earlier)
                anchors.push_back(finding.earlier.get());
            for (const PlacelessEdit& edit : finding.edits)
                anchors.push_back(&edit.anchor);
        }
        std::list<Anchor> markups;
        for (const Suppression& suppression : scanned.suppressions) {
            for (const std::size_t markup : {suppression.comment, suppression.parentEnd}) {
                const AnchorKind kind = markup > 0 ? AnchorKind::WholeMarkup : AnchorKind::Nowhere;
                anchors.push_back(&markups.emplace_back(Anchor{kind, markup}));
            }
        }
        m_ranges = FindPlaces(source, anchors);
    }

    const std::vector<Range>& All() const { return m_ranges; }
    const Range& Take() { return m_ranges[m_taken++]; }

private:
    std::vector<Range> m_ranges;
    std::size_t m_taken = 0;
};

/// All edits with their places, or none.
std::vector<Edit> PlacedEdits(std::vector<PlacelessEdit> placeless, PlaceList& places)
{
    std::vector<Edit> edits;
    for (PlacelessEdit& edit : placeless) {
        const Range& range = places.Take();
        if (range.begin.line > 0)
            edits.push_back({range, std::move(edit.replacement)});
    }
    if (edits.size() < placeless.size())
        edits.clear();
    return edits;
}

Finding Placed(PlacelessFinding finding, const std::string& name, const Range& range)
{
    const FindingRule& rule = RuleOf(finding.id);
    const bool report =
        finding.anchor.kind == AnchorKind::Report || finding.anchor.kind == AnchorKind::FatalReport;
    return {finding.id,
            rule.kind,
            SeverityOf(rule.kind),
            report && !finding.anchor.name.empty() ? finding.anchor.name : name,
            range,
            std::move(finding.path),
            std::move(finding.subject),
            std::move(finding.suggestion),
            std::move(finding.sentence.text),
            std::move(finding.sentence.values),
            {},
            std::move(finding.identity),
            {}};
}

ObjectPlaces PlacesOf(ObjectTags& objects, const SourceText& source)
{
    const auto places = [&](Definition kind) {
        std::vector<Anchor> anchors;
        for (const std::size_t markup : objects[kind])
            anchors.push_back({AnchorKind::TagName, markup});
        std::vector<const Anchor*> pointers;
        pointers.reserve(anchors.size());
        for (const Anchor& anchor : anchors)
            pointers.push_back(&anchor);
        return anchors.empty() ? std::vector<Range>() : FindPlaces(source, pointers);
    };
    return {places(Definition::Attribute), places(Definition::File), places(Definition::Group),
            places(Definition::Entity)};
}

void SortByPlace(std::list<Finding>& findings, const std::string& name)
{
    const auto key = [&](const Finding& finding) {
        return std::tuple(finding.file != name, std::string_view(finding.file), finding.range.begin.line,
                          finding.range.begin.column);
    };
    findings.sort([&](const Finding& left, const Finding& right) { return key(left) < key(right); });
}

/// Every finding that follows from another one goes into that one. clang calls std::stable_sort of libstdc++
/// 12 deprecated, hence the list.
std::list<Finding> Placed(Placeless& placeless, PlaceList& places, const std::string& name)
{
    std::list<Finding> findings;
    std::vector<std::list<Finding>::iterator> placed;
    placed.reserve(placeless.size());
    for (PlacelessFinding& finding : placeless) {
        const Range& range = places.Take();
        if (finding.earlier)
            finding.sentence.PutLine(places.Take().begin.line);
        std::vector<Edit> fix = PlacedEdits(std::move(finding.edits), places);
        const std::optional<std::size_t> cause = finding.cause;
        placed.push_back(findings.insert(findings.end(), Placed(std::move(finding), name, range)));
        findings.back().fix = std::move(fix);
        if (cause) { // which comes earlier
            placed[*cause]->consequences.push_back(std::move(findings.back()));
            findings.pop_back();
            placed.back() = findings.end();
        }
    }
    return findings;
}

void ForgetSuppressions(Scanned& scanned)
{
    scanned.suppressions.clear();
    const auto isAboutSuppression = [](const PlacelessFinding& finding) {
        return RuleOf(finding.id).kind == FindingKind::Suppression;
    };
    scanned.findings.erase(
        std::remove_if(scanned.findings.begin(), scanned.findings.end(), isAboutSuppression),
        scanned.findings.end());
}

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

void ApplySuppressions(std::vector<Suppression>& suppressions, PlaceList& places, const std::string& name,
                       const CheckOptions& options, std::list<Finding>& findings, CheckResult& result)
{
    for (Suppression& suppression : suppressions) {
        suppression.range = places.Take();
        const Range& parentEnd = places.Take();
        suppression.end =
            suppression.parentEnd > 0 ? parentEnd.begin.offset : std::numeric_limits<std::size_t>::max();
    }
    result.suppressed = Suppress(findings, suppressions, name);
    const bool complete = std::none_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.severity == Severity::Error;
    });
    if (complete)
        ReportStale(suppressions, name, options, findings);
}

} // namespace

void ScanAsRead(const XercesSession& session, const Document& document, DocumentVisitor& visitor)
{
    const std::uint64_t delivered = ScanDocument(document, visitor);
    if (delivered > kManyUnits + kManyUnitsPerByte * document.bytes.size() &&
        DocumentTree(session, document).IsExceeded())
        visitor.OnProblem(Problem::Expansion, {}, {});
}

CheckResult CheckBytes(const XercesSession& session, const Document& document, const std::string& name,
                       const CheckOptions& options, DocumentVisitor* listener)
{
    std::unique_ptr<CodePage> codePage;
    if (options.codePage != 0)
        codePage = std::make_unique<CodePage>(options.codePage);
    CheckResult result;
    Scanned scanned = Scan(session, document, codePage.get(), options, listener);
    if (!options.suppressions)
        ForgetSuppressions(scanned);
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
    std::list<Finding> findings = Placed(scanned.findings, places, name);
    SortByPlace(findings, name);
    if (!scanned.suppressions.empty())
        ApplySuppressions(scanned.suppressions, places, name, options, findings, result);
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
