#include "TalAttributeSchemaHost/check/DocumentChecker.h"

#include <algorithm>
#include <set>
#include <utility>

#include "TalAttributeSchemaHost/check/DocumentMessages.h"
#include "TalAttributeSchemaHost/check/FormatLookup.h"
#include "TalAttributeSchemaHost/check/IdentityKey.h"
#include "TalAttributeSchemaHost/check/NameSuggestions.h"
#include "TalAttributeSchemaHost/text/NearNames.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/format/FolderDepth.h"
#include "TalAttributeSchemaReader/format/NodeName.h"
#include "TalAttributeSchemaReader/format/YesNo.h"
#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace tal {

namespace {

// References keep their places at least as far as this, so that few findings are wanted makes none of them
// dangle unseen.
constexpr std::size_t kLeastAwaiting = 100'000;

} // namespace

DocumentChecker::DocumentChecker(const CodePage* codePage, std::size_t mostFindings, bool keepObjects)
    : m_codePage(codePage),
      m_keepObjects(keepObjects),
      m_references(std::max(mostFindings, kLeastAwaiting)),
      m_mostFindings(mostFindings)
{
}

void DocumentChecker::OnProblem(Problem problem, const GuString& text, const Anchor& anchor)
{
    const std::string what = ToUtf8(text);
    m_readable = m_readable && problem == Problem::WrongRoot;
    switch (problem) {
    case Problem::Warning:
        Report(FindingId::ParserWarning, anchor, {what}, message::NothingIsRead(what));
        break;
    case Problem::Error:
        Report(FindingId::NotValid, anchor, {what}, message::NothingIsRead(what));
        break;
    case Problem::FatalError:
        m_complete = false;
        Report(FindingId::NotWellFormed, anchor, {what}, message::NothingIsRead(what));
        break;
    case Problem::OutsideFolder:
        m_complete = false;
        Report(FindingId::OutsideFolder, anchor, {what}, message::NeedsOutside(what));
        break;
    case Problem::Expansion:
        m_complete = false;
        Report(FindingId::Expansion, anchor, {}, message::ExpandsTooFar());
        break;
    case Problem::Version:
        Report(FindingId::UnsupportedVersion, anchor, {what}, message::BadVersion(what));
        break;
    case Problem::DocumentTypeName:
        Report(FindingId::NotValid, anchor, {what}, message::BadDocumentType(what));
        break;
    case Problem::WrongRoot:
        Report(FindingId::WrongRoot, anchor, {what, kRootElement.name}, message::WrongRoot(what));
        // A name that is only near is that of another kind of document.
        if (m_kept && EqualIgnoringCase(what, kRootElement.name))
            m_rootName = {m_findings.size() - 1,
                          ElementRenames::Edits(kRootElement.name, anchor.number, anchor.number)};
        break;
    }
}

void DocumentChecker::OnExternalReference(const GuString& entity, const GuString& target,
                                          const Anchor& anchor)
{
    Report(FindingId::ExternalReference, anchor, {ToUtf8(target)},
           message::RefersOutside(ToUtf8(entity), ToUtf8(target)));
}

void DocumentChecker::OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                                     std::size_t markup)
{
    const std::size_t findings = m_findings.size();
    if (m_skipped == 0) {
        if (Enter(name, attributes, markup))
            return;
        m_cause.reset();
        if (m_findings.size() > findings)
            m_cause = findings;
    }
    // One that is misspelt defines what it was meant to.
    const bool misspelt = m_skipped == 0 && m_cause && FindDefining(name) == nullptr;
    const GuString meant = misspelt ? FromUtf8(m_findings[*m_cause].suggestion) : GuString(name);
    HideDefinition(meant.c_str(), attributes, markup);
    ++m_skipped;
}

void DocumentChecker::OnEndElement(std::size_t markup)
{
    if (Depth() > 0)
        EndSuppressions(markup);
    if (m_skipped > 0 || m_open.empty()) {
        EndUnread(markup);
        return;
    }
    OpenElement& element = m_open.back();
    if (!element.renames.IsEmpty())
        Fix(element.renames.TakeCertain([&](const ElementRule& meant) {
            const auto rule = static_cast<std::size_t>(&meant - element.rule->type->elements.first);
            return element.merged || m_numbers[element.numbers + rule] > 0;
        }));
    const FindingId id = element.rule->type->withoutElements;
    if (id != FindingId::None && !element.hasElements)
        ReportLost(id, Tag(), {Name()}, message::NoElementInside(Name()));
    Close();
}

void DocumentChecker::OnText(const Anchor& anchor)
{
    if (m_skipped == 0 && !m_open.empty() && !std::exchange(m_open.back().hasText, true))
        Report(FindingId::TextContent, anchor, {Name()}, message::TextIsSkipped(Name()));
}

void DocumentChecker::OnStartEntity(const XMLCh* name, std::size_t markup)
{
    if (m_entities++ == 0) {
        m_entityName = ToUtf8(name);
        m_entityMarkup = markup;
    }
}

void DocumentChecker::OnEndEntity()
{
    --m_entities;
}

void DocumentChecker::OnComment(const XMLCh* text, std::size_t markup)
{
    ParsedSuppression parsed = ParseSuppression(ToUtf8(text));
    if (!parsed.isSuppression)
        return;
    const Anchor anchor = {AnchorKind::WholeMarkup, markup};
    if (!parsed.unknown.empty()) {
        const About about = {parsed.unknown, NearestName(parsed.unknown, SuppressionWords())};
        Report(FindingId::UnknownSuppression, anchor, about,
               message::UnknownSuppression(about.subject, about.suggestion));
    }
    for (const std::string& identifier : parsed.unknownIdentifiers) {
        const About about = {identifier, NearestName(identifier, SuppressibleIdentifiers())};
        Report(FindingId::UnknownSuppression, anchor, about,
               message::UnknownIdentifier(about.subject, about.suggestion));
    }
    if (parsed.suppression.subjects.empty())
        return;
    parsed.suppression.comment = markup;
    parsed.suppression.path = m_path.Text();
    parsed.suppression.identity = m_path.Identity();
    m_openSuppressions.push_back({m_suppressions.size(), Depth()});
    m_suppressions.push_back(std::move(parsed.suppression));
}

/// Ends an element that is not read.
void DocumentChecker::EndUnread(std::size_t markup)
{
    if (m_skipped == 0) { // the root
        if (m_rootName) {
            m_rootName->edits =
                ElementRenames::Edits(kRootElement.name, m_rootName->edits[0].anchor.number, markup);
            Fix({std::move(*m_rootName)});
        }
    } else if (--m_skipped == 0 && std::exchange(m_inRenamed, false)) {
        m_open.back().renames.End(markup);
    }
}

void DocumentChecker::EndSuppressions(std::size_t markup)
{
    for (; !m_openSuppressions.empty() && m_openSuppressions.back().depth == Depth();
         m_openSuppressions.pop_back())
        m_suppressions[m_openSuppressions.back().index].parentEnd = markup;
}

void DocumentChecker::Fix(std::vector<FixProposal> proposals)
{
    for (FixProposal& proposal : proposals)
        m_findings[proposal.finding].edits = std::move(proposal.edits);
}

std::vector<PlacelessFinding> DocumentChecker::TakeFindings()
{
    if (!m_readable) { // whether an edit helps could not be tried
        for (PlacelessFinding& finding : m_findings)
            finding.edits.clear();
    }
    if (m_complete) { // a definition may stand behind the place where the parser gave up
        ReportDangling();
        if (const std::size_t further = m_references.CountFurtherDangling())
            m_omitted[FindingId::UnknownReference] += further;
    }
    return std::move(m_findings);
}

/// Several references into one element that is skipped follow from the finding about that element.
void DocumentChecker::ReportDangling()
{
    std::vector<Reference> dangling = m_references.TakeDangling();
    std::map<std::size_t, std::size_t> numbers;
    for (const Reference& reference : dangling) {
        if (reference.hidden && reference.hidden->cause)
            ++numbers[*reference.hidden->cause];
    }
    for (Reference& reference : dangling) {
        const std::string id = ToUtf8(reference.id.c_str());
        Sentence sentence = reference.hidden ? message::NamesHidden(reference.attribute, reference.kind, id)
                                             : message::NamesNothing(reference.attribute, reference.kind, id,
                                                                     reference.suggestion);
        PlacelessFinding& finding =
            Report(FindingId::UnknownReference,
                   {AnchorKind::AttributeValue, reference.markup, 0, reference.attribute},
                   {id, reference.suggestion}, std::move(sentence));
        finding.path = std::move(reference.path);
        finding.identity = std::move(reference.identity);
        if (!reference.hidden)
            continue;
        finding.earlier = std::make_unique<Anchor>(Anchor{AnchorKind::TagName, reference.hidden->markup});
        if (reference.hidden->cause && numbers[*reference.hidden->cause] > 1)
            finding.cause = reference.hidden->cause;
    }
    for (const auto& [cause, number] : numbers) {
        if (number > 1)
            m_findings[cause].sentence.PutMore(message::ReferencesInto(number));
    }
}

/// Keeps what an element that is skipped would define.
void DocumentChecker::HideDefinition(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                                     std::size_t markup)
{
    if (attributes.empty())
        return;
    const AttributeRule* const rule = FindDefining(name);
    if (!rule)
        return;
    for (const XmlAttribute& attribute : attributes) {
        if (!attribute.value.empty() && NodeName(attribute.name) == rule->name)
            m_references.Hide(rule->defines, attribute.value, {markup, m_cause});
    }
}

/// Opens an element, or returns false when the reader passes over it with everything in it.
bool DocumentChecker::Enter(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                            std::size_t markup)
{
    OpenElement element;
    element.markup = markup;
    element.rule = &kRootElement;
    if (!m_open.empty()) {
        if (m_entities > 0) {
            const std::string shown = ToUtf8(name);
            Report(FindingId::EntityContent, {AnchorKind::Reference, m_entityMarkup}, {shown},
                   message::EntityContent(shown, m_entityName));
            return false;
        }
        if (!CheckContent())
            return false;
        OpenElement& parent = m_open.back();
        const ElementType& type = *parent.rule->type;
        element.rule = FindElement(type, name);
        if (!element.rule) {
            ReportUnknownElement(name, ++parent.strangers[ToUtf8(name)], markup);
            return false;
        }
        const auto rule = static_cast<std::size_t>(element.rule - type.elements.first);
        element.number = ++m_numbers[parent.numbers + rule];
        element.written = parent.written;
        element.level = parent.level + (element.rule->maxLevel ? 1 : 0);
        element.selector = parent.selector;
        element.merged = !element.rule->list && (parent.merged || element.number > 1);
    }
    Open(std::move(element), attributes);
    if (CheckElement(attributes) && CheckAttributes(attributes)) {
        KeepObject();
        return true;
    }
    Close();
    return false;
}

void DocumentChecker::Open(OpenElement element, const std::vector<XmlAttribute>& attributes)
{
    const bool list = element.rule->list;
    m_path.Enter(element.rule->name, list, element.number,
                 list ? KeyOf(*element.rule->type, attributes) : std::string());
    element.numbers = m_numbers.size();
    m_numbers.resize(element.numbers + element.rule->type->elements.count);
    m_open.push_back(std::move(element));
}

void DocumentChecker::Close()
{
    m_numbers.resize(m_open.back().numbers);
    m_open.pop_back();
    m_path.Leave();
}

void DocumentChecker::KeepObject()
{
    if (!m_keepObjects)
        return;
    for (const AttributeRule& rule : m_open.back().rule->type->attributes) {
        if (rule.defines != Definition::None)
            m_objects[rule.defines].push_back(m_open.back().markup);
    }
}

/// Checks an element that begins in the innermost open one. Returns false when no content is read there.
bool DocumentChecker::CheckContent()
{
    OpenElement& parent = m_open.back();
    parent.hasElements = true;
    const FindingId id = std::exchange(parent.contentFinding, FindingId::None);
    if (id != FindingId::None) {
        ReportLost(id, Tag(), {Name()},
                   parent.contentRead || parent.rule->type->anyElements
                       ? message::ContentIgnored(Name(), false)
                       : message::ContentNotRead(Name()));
        parent.written = false;
    }
    return parent.contentRead;
}

/// Checks the innermost open element by itself. Returns false when it is not read.
bool DocumentChecker::CheckElement(const std::vector<XmlAttribute>& attributes)
{
    OpenElement& element = m_open.back();
    const ElementRule& rule = *element.rule;
    if (element.level > kMaxFolderDepth) {
        ReportLost(FindingId::FolderTooDeep, Tag(), {Name()}, message::FolderTooDeep());
        return false;
    }
    if (element.number > 1 && !rule.list) {
        const XmlAttribute* const value = FindValue(*rule.type, attributes);
        ReportLost(FindingId::MergedElement, Tag(), {Name()},
                   message::MergedElement(Name(), value ? ToUtf8(value->name) : std::string()));
    }
    bool written = rule.notWritten == FindingId::None;
    if (!written)
        ReportLost(rule.notWritten, Tag(), {Name()}, message::ElementNotWritten(Name()));
    if (rule.onlyFor) {
        const OpenElement& selector = m_open[element.selector];
        const bool selected = selector.selects == Match::IgnoreCase
                                  ? selector.selected.CompareNoCase(GuString(rule.onlyFor)) == 0
                                  : selector.selected == rule.onlyFor;
        if (!selected)
            ReportLost(FindingId::OtherType, Tag(), {Name()},
                       message::WrittenForAnotherType(Name(), rule.onlyFor, ToUtf8(selector.selected)));
        written = written && selected;
    }
    element.written = element.written && written;
    element.contentFinding = rule.type->contentNotWritten;
    element.contentRead = !rule.type->anyElements;
    return true;
}

/// Checks the attributes of the innermost open element. Returns false when they keep it from being read.
bool DocumentChecker::CheckAttributes(const std::vector<XmlAttribute>& attributes)
{
    OpenElement& element = m_open.back();
    const ElementType& type = *element.rule->type;
    if (attributes.empty()) {
        if (type.withoutAttributes != FindingId::None) {
            Report(type.withoutAttributes, Tag(), {Name()}, message::NoAttributes(Name()));
            return false;
        }
        if (type.contentWithoutAttributes != FindingId::None) {
            element.contentFinding = type.contentWithoutAttributes;
            element.contentRead = false;
        }
    }
    bool read = true;
    m_taken.clear();
    for (const AttributeRule& rule : type.attributes) {
        if (const XmlAttribute* attribute = FindAttribute(type, rule, attributes)) {
            m_taken.push_back(attribute);
            read = CheckAttribute(rule, *attribute, attributes) && read;
        } else if (rule.required) {
            Report(FindingId::MissingAttribute, Tag(), {rule.name},
                   message::MissingAttribute(Name(), rule.name));
            read = false;
        }
    }
    for (const XmlAttribute& attribute : attributes) {
        if (std::find(m_taken.begin(), m_taken.end(), &attribute) == m_taken.end())
            CheckUnreadAttribute(attribute);
    }
    std::vector<FixProposal> renames = m_renames.TakeCertain(type, attributes, element.markup);
    if (!element.merged) // or it would replace what was read before
        Fix(std::move(renames));
    return read;
}

/// Checks an attribute that the table knows. Returns false when its value keeps the element from being read.
bool DocumentChecker::CheckAttribute(const AttributeRule& rule, const XmlAttribute& attribute,
                                     const std::vector<XmlAttribute>& attributes)
{
    OpenElement& element = m_open.back();
    const auto name = [&] { return ToUtf8(attribute.name); };
    if (rule.ifEmpty != FindingId::None && attribute.value.empty()) {
        ReportLost(rule.ifEmpty, AttributeOf(AnchorKind::AttributeValue, attribute.name), {name()},
                   message::EmptyAttribute(Name(), name()));
        return false;
    }
    if (!(NodeName(attribute.name) == rule.name) &&
        ReportLost(FindingId::RenamedAttribute, AttributeOf(AnchorKind::AttributeName, attribute.name),
                   {name(), rule.name}, message::RenamedAttribute(name(), rule.name)))
        m_renames.Propose(m_findings.size() - 1, attribute.name, rule.name);
    if (rule.selects != Match::None) {
        element.selector = m_open.size() - 1;
        element.selects = rule.selects;
        element.selected = attribute.value.data();
    }
    CheckValue(rule, attribute);
    if (rule.notWritten != FindingId::None)
        ReportLost(rule.notWritten, AttributeOf(AnchorKind::AttributeName, attribute.name), {name()},
                   message::AttributeNotWritten(name()));
    else if (rule.notRead != FindingId::None)
        CheckUnreadValue(rule, attribute, attributes);
    else if (rule.flag == Match::None && !SurvivesWriting(attribute.value))
        ReportLost(FindingId::UnwritableCharacter, AttributeOf(AnchorKind::AttributeValue, attribute.name),
                   {ToUtf8(attribute.value.data())}, message::UnwritableCharacter(name()));
    if (m_codePage && rule.flag == Match::None && rule.notRead == FindingId::None)
        CheckCodePage(attribute);
    return true;
}

void DocumentChecker::CheckCodePage(const XmlAttribute& attribute)
{
    const XmlView value = attribute.value;
    std::string lost;
    std::set<char32_t> seen;
    for (std::size_t i = 0; i < value.size();) {
        const char32_t codePoint = NextCodePoint(value.data(), value.size(), i);
        const bool ascii = codePoint < 0x80;
        if (!ascii && !m_codePage->Holds(codePoint) && seen.insert(codePoint).second)
            AppendUtf8(lost, codePoint);
    }
    if (!lost.empty())
        ReportLost(FindingId::CodePage, AttributeOf(AnchorKind::AttributeValue, attribute.name),
                   {ToUtf8(value.data())},
                   message::OutsideCodePage(m_codePage->Number(), lost, ToUtf8(attribute.name)));
}

void DocumentChecker::CheckValue(const AttributeRule& rule, const XmlAttribute& attribute)
{
    const XMLCh* const value = attribute.value.data();
    if (rule.flag != Match::None && !IsFlagValue(value, rule.flag)) {
        const About about = {ToUtf8(value), SuggestFlag(value)};
        Anchor anchor = AttributeOf(AnchorKind::AttributeValue, attribute.name);
        PlacelessFinding& finding =
            Report(FindingId::FlagValue, anchor, about,
                   message::BadFlag(about.subject, rule.name, rule.flag, about.suggestion));
        anchor.exact = true;
        if (!about.suggestion.empty() && !m_open.back().merged)
            finding.edits = {{std::move(anchor), about.suggestion}};
    }
    if (rule.defines != Definition::None)
        Define(rule, attribute.value);
    if (rule.refersTo != Definition::None)
        Refer(rule, attribute.value);
}

/// Checks the value of an attribute that is written from something else.
void DocumentChecker::CheckUnreadValue(const AttributeRule& rule, const XmlAttribute& unread,
                                       const std::vector<XmlAttribute>& attributes)
{
    const ElementType& type = *m_open.back().rule->type;
    const AttributeRule* const source = SourceOf(type, rule);
    const XmlAttribute* const attribute = source ? FindAttribute(type, *source, attributes) : nullptr;
    const GuString value(unread.value.data());
    GuString written;
    if (attribute)
        written = attribute->value.data();
    bool kept = value == written;
    if (rule.flag != Match::None) {
        kept = CountsAsYes(value, rule.flag) == CountsAsYes(written, rule.flag);
        written = YesNo(CountsAsYes(written, rule.flag));
    }
    const std::string meant = source && !attribute ? source->name : "";
    if (kept || !ReportLost(rule.notRead, {AnchorKind::AttributeName, m_open.back().markup, 0, rule.name},
                            {rule.name, meant}, message::AttributeNotRead(rule.name, ToUtf8(written), meant)))
        return;
    // A flag that says Yes was meant to be read; what else stands here may be there for another reader.
    if (rule.flag != Match::None && !meant.empty())
        m_renames.Propose(m_findings.size() - 1, unread.name, meant);
}

/// Says why nobody reads an attribute.
void DocumentChecker::CheckUnreadAttribute(const XmlAttribute& attribute)
{
    OpenElement& element = m_open.back();
    const ElementType& type = *element.rule->type;
    const std::string name = ToUtf8(attribute.name);
    const Anchor anchor = AttributeOf(AnchorKind::AttributeName, attribute.name);
    if (type.anyAttributes) {
        const FindingId id = std::exchange(element.contentFinding, FindingId::None);
        if (id != FindingId::None)
            ReportLost(id, Tag(), {Name()}, message::ContentIgnored(Name(), true));
        return;
    }
    for (const AttributeRule& rule : type.attributes) {
        if (Matches(type, rule, attribute.name)) {
            Report(FindingId::SupersededAttribute, anchor, {name},
                   message::SupersededAttribute(name, rule.name));
            return;
        }
    }
    if (BelongsToXml(name)) {
        ReportLost(FindingId::NamespaceAttribute, anchor, {name}, message::NamespaceAttribute(name));
        return;
    }
    const Suggestion meant = SuggestAttribute(type, name);
    if (meant.onlyCase)
        Report(FindingId::AttributeCase, anchor, {name, meant.name},
               message::AttributeCase(name, meant.name));
    else
        Report(FindingId::UnknownAttribute, anchor, {name, meant.name},
               message::UnknownAttribute(Name(), name, meant.name, ReadAttributes(type)));
    if (meant.certain && m_kept)
        m_renames.Propose(m_findings.size() - 1, attribute.name, meant.name);
}

void DocumentChecker::ReportUnknownElement(const XMLCh* name, std::size_t number, std::size_t markup)
{
    const std::string shown = ToUtf8(name);
    const ElementType& type = *m_open.back().rule->type;
    const Suggestion meant = SuggestElement(type, shown);
    const std::vector<std::string> parents = ParentsOf(name);
    m_path.Enter(shown, false, number);
    const Anchor anchor = {AnchorKind::TagName, markup};
    if (meant.onlyCase)
        Report(FindingId::ElementCase, anchor, {shown, meant.name}, message::ElementCase(shown, meant.name));
    else if (!parents.empty())
        Report(FindingId::MisplacedElement, anchor, {shown, meant.name},
               message::MisplacedElement(shown, parents, meant.name));
    else
        Report(FindingId::UnknownElement, anchor, {shown, meant.name},
               message::UnknownElement(shown, meant.name));
    m_path.Leave();
    m_inRenamed = m_kept && meant.certain && (meant.onlyCase || parents.empty());
    if (m_inRenamed)
        m_open.back().renames.Propose(m_findings.size() - 1,
                                      *FindElement(type, GuString(meant.name.c_str()).c_str()), markup);
}

void DocumentChecker::Define(const AttributeRule& rule, XmlView id)
{
    if (id.empty())
        return; // as good as absent
    const std::size_t markup = m_open.back().markup;
    const std::optional<std::size_t> first = m_references.Define(rule.defines, id, markup);
    if (!first)
        return;
    const bool entity = rule.defines == Definition::Entity;
    PlacelessFinding& finding =
        Report(entity ? FindingId::DuplicateType : FindingId::DuplicateId,
               {AnchorKind::AttributeValue, markup, 0, rule.name}, {ToUtf8(id.data())},
               message::DefinedTwice(rule.defines, ToUtf8(id.data())));
    finding.earlier = std::make_unique<Anchor>(Anchor{AnchorKind::AttributeValue, *first, 0, rule.name});
}

void DocumentChecker::Refer(const AttributeRule& rule, XmlView id)
{
    // Attributes that may be absent are written empty then.
    const bool absent = id.empty() && !rule.required;
    if (!absent && !m_references.IsDefined(rule.refersTo, id))
        m_references.Await({rule.refersTo, std::basic_string<XMLCh>(id), rule.name, m_open.back().markup,
                            m_path.Text(), m_path.Identity()});
}

Anchor DocumentChecker::AttributeOf(AnchorKind kind, const XMLCh* name) const
{
    return {kind, m_open.back().markup, 0, ToUtf8(name)};
}

PlacelessFinding& DocumentChecker::Report(FindingId id, Anchor anchor, About about, Sentence sentence)
{
    m_kept = Keeps(id);
    if (!m_kept) {
        ++m_omitted[id];
        return m_nobodys;
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
    return m_findings.back();
}

bool DocumentChecker::Keeps(FindingId id)
{
    const bool firstError = SeverityOf(RuleOf(id).kind) == Severity::Error && m_errors.insert(id).second;
    return firstError || m_findings.size() < m_mostFindings;
}

PlacelessFinding* DocumentChecker::ReportLost(FindingId id, Anchor anchor, About about, Sentence sentence)
{
    if (!m_open.back().written)
        return nullptr;
    PlacelessFinding& finding = Report(id, std::move(anchor), std::move(about), std::move(sentence));
    return m_kept ? &finding : nullptr;
}

} // namespace tal
