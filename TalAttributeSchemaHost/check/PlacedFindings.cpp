#include "TalAttributeSchemaHost/check/PlacedFindings.h"

#include <map>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

namespace tal {

namespace {

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

} // namespace

PlaceList::PlaceList(const Scanned& scanned, const SourceText& source)
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

// clang calls std::stable_sort of libstdc++ 12 deprecated, hence the list.
std::list<Finding> Placed(std::vector<PlacelessFinding>& placeless, PlaceList& places,
                          const std::string& name, Causes& causes)
{
    std::list<Finding> findings;
    std::vector<Finding*> placed;
    placed.reserve(placeless.size());
    for (PlacelessFinding& finding : placeless) {
        const Range& range = places.Take();
        if (finding.earlier)
            finding.sentence.PutLine(places.Take().begin.line);
        std::vector<Edit> fix = PlacedEdits(std::move(finding.edits), places);
        const std::optional<std::size_t> cause = finding.cause;
        placed.push_back(&findings.emplace_back(Placed(std::move(finding), name, range)));
        findings.back().fix = std::move(fix);
        if (cause) // which comes earlier
            causes.emplace(placed.back(), placed[*cause]);
    }
    return findings;
}

void Fold(std::list<Finding>& findings, const Causes& causes)
{
    std::map<const Finding*, std::size_t> numbers;
    for (const auto& [finding, cause] : causes)
        ++numbers[cause];
    for (auto finding = findings.begin(); finding != findings.end();) {
        const auto found = causes.find(&*finding);
        if (found == causes.end() || numbers[found->second] == 1) {
            ++finding;
        } else {
            found->second->consequences.push_back(std::move(*finding));
            finding = findings.erase(finding);
        }
    }
}

void SortByPlace(std::list<Finding>& findings, const std::string& name)
{
    const auto key = [&](const Finding& finding) {
        return std::tuple(finding.file != name, std::string_view(finding.file), finding.range.begin.line,
                          finding.range.begin.column);
    };
    findings.sort([&](const Finding& left, const Finding& right) { return key(left) < key(right); });
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

} // namespace tal
