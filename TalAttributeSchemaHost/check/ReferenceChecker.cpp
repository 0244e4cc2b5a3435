#include "TalAttributeSchemaHost/check/ReferenceChecker.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "TalAttributeSchemaHost/messages/FindingMessages.h"
#include "TalAttributeSchemaHost/table/FormatLookup.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/format/NodeName.h"

namespace tal {

namespace {

// References keep their places at least as far as this, so that few findings are wanted makes none of them
// dangle unseen.
constexpr std::size_t kLeastAwaiting = 100'000;

/// How many references there are into each element that is skipped, by the number of its finding.
std::map<std::size_t, std::size_t> CountByCause(const std::vector<Reference>& dangling)
{
    std::map<std::size_t, std::size_t> numbers;
    for (const Reference& reference : dangling) {
        if (reference.hidden && reference.hidden->cause)
            ++numbers[*reference.hidden->cause];
    }
    return numbers;
}

} // namespace

ReferenceChecker::ReferenceChecker(std::size_t mostFindings, const ElementPath& path, FindingLog& log)
    : m_path(path), m_log(log), m_references(std::max(mostFindings, kLeastAwaiting))
{
}

void ReferenceChecker::Define(const AttributeRule& rule, XmlView id, std::size_t markup)
{
    if (id.empty())
        return; // as good as absent
    const std::optional<std::size_t> first = m_references.Define(rule.defines, id, markup);
    if (!first)
        return;
    const bool entity = rule.defines == Definition::Entity;
    PlacelessFinding* const finding =
        m_log.Report(entity ? FindingId::DuplicateType : FindingId::DuplicateId,
                     {AnchorKind::AttributeValue, markup, 0, rule.name}, {ToUtf8(id.data())},
                     message::DefinedTwice(rule.defines, ToUtf8(id.data())));
    if (finding)
        finding->earlier = std::make_unique<Anchor>(Anchor{AnchorKind::AttributeValue, *first, 0, rule.name});
}

void ReferenceChecker::Refer(const AttributeRule& rule, XmlView id, std::size_t markup)
{
    // Attributes that may be absent are written empty then.
    const bool absent = id.empty() && !rule.required;
    if (!absent && !m_references.IsDefined(rule.refersTo, id))
        m_references.Await({rule.refersTo, std::basic_string<XMLCh>(id), rule.name, markup, m_path.Text(),
                            m_path.Identity()});
}

void ReferenceChecker::Hide(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                            std::size_t markup, std::optional<std::size_t> cause)
{
    if (attributes.empty())
        return;
    const AttributeRule* const rule = FindDefining(name);
    if (!rule)
        return;
    for (const XmlAttribute& attribute : attributes) {
        if (!attribute.value.empty() && NodeName(attribute.name) == rule->name)
            m_references.Hide(rule->defines, attribute.value, {markup, cause});
    }
}

void ReferenceChecker::ReportDangling()
{
    std::vector<Reference> dangling = m_references.TakeDangling();
    // References into one element that is skipped follow from the finding about that element.
    const std::map<std::size_t, std::size_t> numbers = CountByCause(dangling);
    for (Reference& reference : dangling) {
        const std::string id = ToUtf8(reference.id.c_str());
        Sentence sentence = reference.hidden ? message::NamesHidden(reference.attribute, reference.kind, id)
                                             : message::NamesNothing(reference.attribute, reference.kind, id,
                                                                     reference.suggestion);
        PlacelessFinding* const finding =
            m_log.Report(FindingId::UnknownReference,
                         {AnchorKind::AttributeValue, reference.markup, 0, reference.attribute},
                         {id, reference.suggestion}, std::move(sentence));
        if (!finding)
            continue;
        finding->path = std::move(reference.path);
        finding->identity = std::move(reference.identity);
        if (!reference.hidden)
            continue;
        finding->earlier = std::make_unique<Anchor>(Anchor{AnchorKind::TagName, reference.hidden->markup});
        finding->cause = reference.hidden->cause;
    }
    for (const auto& [cause, number] : numbers) {
        if (number > 1)
            m_log[cause].sentence.PutMore(message::ReferencesInto(number));
    }
    if (const std::size_t further = m_references.CountFurtherDangling())
        m_log.Omit(FindingId::UnknownReference, further);
}

} // namespace tal
