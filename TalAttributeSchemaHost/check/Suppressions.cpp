#include "TalAttributeSchemaHost/check/Suppressions.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace tal {

namespace {

constexpr std::string_view kPrefix = "talschema-";
constexpr const char* kDisable = "talschema-disable";
constexpr const char* kDisableNextLine = "talschema-disable-next-line";
constexpr std::string_view kSpace = " \t\r\n";

std::string_view Trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kSpace), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(kSpace) + 1));
    return text;
}

/// Takes what stands in front of the first of the characters, or everything.
std::string_view TakeUpTo(std::string_view& text, std::string_view characters)
{
    const std::size_t end = std::min(text.find_first_of(characters), text.size());
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

FindingId IdOf(std::string_view identifier)
{
    const FindingRules& rules = AllFindingRules();
    const auto* const found = std::find_if(
        rules.begin(), rules.end(), [&](const FindingRule& rule) { return identifier == rule.identifier; });
    return found != rules.end() && IsSuppressible(found->id) ? found->id : FindingId::None;
}

/// A comment, and what of it.
struct Entry
{
    Suppression* suppression;
    Suppression::Subject* subject;
};

/// The comments that count where a finding stands, for one identifier. Findings have to come in order.
class Active
{
public:
    void Add(Suppression& suppression, Suppression::Subject& subject)
    {
        if (suppression.nextLine)
            m_lines.emplace(suppression.range.end.line + 1, Entry{&suppression, &subject});
        else
            m_rest.push_back({&suppression, &subject});
    }

    const Entry* Find(const Position& place)
    {
        const auto line = m_lines.find(place.line);
        if (line != m_lines.end())
            return &line->second;
        for (; m_next < m_rest.size() && m_rest[m_next].suppression->range.end.offset <= place.offset;
             ++m_next)
            m_open.push_back(m_rest[m_next]);
        // They end like the elements around them, so the innermost one ends first.
        while (!m_open.empty() && m_open.back().suppression->end <= place.offset)
            m_open.pop_back();
        return m_open.empty() ? nullptr : &m_open.back();
    }

private:
    std::map<std::size_t, Entry> m_lines;
    std::vector<Entry> m_rest; // in order
    std::size_t m_next = 0;
    std::vector<Entry> m_open;
};

/// What the comments ask for.
class AskedFor
{
public:
    AskedFor(const std::list<Finding>& findings, const Causes& causes, std::vector<Suppression>& suppressions,
             const std::string& name)
        : m_causes(causes)
    {
        std::map<FindingId, Active> active;
        for (Suppression& suppression : suppressions) {
            for (Suppression::Subject& subject : suppression.subjects)
                active[subject.id].Add(suppression, subject);
        }
        std::map<const Finding*, FindingId> following; // all that follows from a finding is of one kind
        for (const auto& [finding, cause] : causes)
            following[cause] = finding->id;
        for (const Finding& finding : findings) {
            if (finding.file != name || finding.range.begin.line == 0)
                continue;
            LookUp(active, finding, finding.id, m_itself);
            const auto follows = following.find(&finding);
            if (follows != following.end())
                LookUp(active, finding, follows->second, m_following);
        }
    }

    const Entry* Find(const Finding& finding) const
    {
        const auto itself = m_itself.find(&finding);
        if (itself != m_itself.end())
            return &itself->second;
        const auto cause = m_causes.find(&finding);
        const auto following = cause == m_causes.end() ? m_following.end() : m_following.find(cause->second);
        return following == m_following.end() ? nullptr : &following->second;
    }

private:
    using Entries = std::map<const Finding*, Entry>;

    static void LookUp(std::map<FindingId, Active>& active, const Finding& finding, FindingId id,
                       Entries& entries)
    {
        const auto candidates = active.find(id);
        const Entry* const entry =
            candidates == active.end() ? nullptr : candidates->second.Find(finding.range.begin);
        if (entry)
            entries.emplace(&finding, *entry);
    }

    const Causes& m_causes;
    Entries m_itself;
    Entries m_following; // what follows from a finding, asked for where that one stands
};

} // namespace

ParsedSuppression ParseSuppression(std::string_view comment)
{
    ParsedSuppression parsed;
    std::string_view rest = Trimmed(comment);
    if (rest.substr(0, kPrefix.size()) != kPrefix)
        return parsed;
    parsed.isSuppression = true;
    const std::string_view what = TakeUpTo(rest, kSpace);
    parsed.suppression.nextLine = what == kDisableNextLine;
    if (!parsed.suppression.nextLine && what != kDisable) {
        parsed.unknown = what;
        return parsed;
    }
    std::string_view identifiers = TakeUpTo(rest, ":");
    parsed.suppression.reason = Trimmed(rest);
    do {
        const std::string_view identifier = Trimmed(TakeUpTo(identifiers, ","));
        const FindingId id = IdOf(identifier);
        if (id == FindingId::None)
            parsed.unknownIdentifiers.emplace_back(identifier);
        else
            parsed.suppression.subjects.push_back({id});
    } while (!identifiers.empty());
    return parsed;
}

bool IsSuppressible(FindingId id)
{
    const FindingKind kind = RuleOf(id).kind;
    return SeverityOf(kind) != Severity::Error && kind != FindingKind::Suppression;
}

std::vector<std::string> SuppressibleIdentifiers()
{
    std::vector<std::string> identifiers;
    for (const FindingRule& rule : AllFindingRules()) {
        if (IsSuppressible(rule.id))
            identifiers.emplace_back(rule.identifier);
    }
    return identifiers;
}

std::vector<std::string> SuppressionWords()
{
    return {kDisable, kDisableNextLine};
}

std::vector<SuppressedFinding> Suppress(std::list<Finding>& findings, Causes& causes,
                                        std::vector<Suppression>& suppressions, const std::string& name)
{
    const AskedFor asked(findings, causes, suppressions, name);
    std::vector<SuppressedFinding> suppressed;
    std::set<const Finding*> taken;
    for (auto finding = findings.begin(); finding != findings.end();) {
        const Entry* const entry = asked.Find(*finding);
        if (!entry) {
            ++finding;
            continue;
        }
        entry->subject->used = true;
        taken.insert(&*finding);
        suppressed.push_back({std::move(*finding), entry->suppression->reason});
        finding = findings.erase(finding);
    }
    for (auto pair = causes.begin(); pair != causes.end();)
        pair =
            taken.count(pair->first) + taken.count(pair->second) > 0 ? causes.erase(pair) : std::next(pair);
    return suppressed;
}

} // namespace tal
