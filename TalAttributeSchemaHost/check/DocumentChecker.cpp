#include "TalAttributeSchemaHost/check/DocumentChecker.h"

#include <utility>

#include "TalAttributeSchemaHost/messages/DocumentMessages.h"
#include "TalAttributeSchemaHost/messages/FindingMessages.h"
#include "TalAttributeSchemaHost/table/FormatLookup.h"
#include "TalAttributeSchemaHost/table/NameSuggestions.h"
#include "TalAttributeSchemaHost/text/NearNames.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/format/FolderDepth.h"

namespace tal {

DocumentChecker::DocumentChecker(const CodePage* codePage, const CheckOptions& options)
    : m_log(options.maxFindings, m_path),
      m_open(m_path, m_log),
      m_references(options.maxFindings, m_path, m_log),
      m_attributes(codePage, m_open, m_references, m_log),
      m_comments(m_path, m_log),
      m_keepObjects(options.keepPlaces),
      m_readComments(options.suppressions)
{
}

void DocumentChecker::OnProblem(Problem problem, const GuString& text, const Anchor& anchor)
{
    const std::string what = ToUtf8(text);
    m_readable = m_readable && problem == Problem::WrongRoot;
    switch (problem) {
    case Problem::Warning:
        m_log.Report(FindingId::ParserWarning, anchor, {what}, message::NothingIsRead(what));
        break;
    case Problem::Error:
        m_log.Report(FindingId::NotValid, anchor, {what}, message::NothingIsRead(what));
        break;
    case Problem::FatalError:
        m_complete = false;
        m_log.Report(FindingId::NotWellFormed, anchor, {what}, message::NothingIsRead(what));
        break;
    case Problem::OutsideFolder:
        m_complete = false;
        m_log.Report(FindingId::OutsideFolder, anchor, {what}, message::NeedsOutside(what));
        break;
    case Problem::Expansion:
        m_complete = false;
        m_log.Report(FindingId::Expansion, anchor, {}, message::ExpandsTooFar());
        break;
    case Problem::Version:
        m_log.Report(FindingId::UnsupportedVersion, anchor, {what}, message::BadVersion(what));
        break;
    case Problem::DocumentTypeName:
        m_log.Report(FindingId::NotValid, anchor, {what}, message::BadDocumentType(what));
        break;
    case Problem::WrongRoot:
        // A name that is only near is that of another kind of document.
        if (m_log.Report(FindingId::WrongRoot, anchor, {what, kRootElement.name}, message::WrongRoot(what)) &&
            EqualIgnoringCase(what, kRootElement.name))
            m_rootName = {m_log.Last(),
                          ElementRenames::Edits(kRootElement.name, anchor.number, anchor.number)};
        break;
    }
}

void DocumentChecker::OnExternalReference(const GuString& entity, const GuString& target,
                                          const Anchor& anchor)
{
    m_log.Report(FindingId::ExternalReference, anchor, {ToUtf8(target)},
                 message::RefersOutside(ToUtf8(entity), ToUtf8(target)));
}

void DocumentChecker::OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                                     std::size_t markup)
{
    const std::size_t findings = m_log.GetCount();
    if (m_skipped == 0) {
        if (Enter(name, attributes, markup))
            return;
        m_cause.reset();
        if (m_log.GetCount() > findings)
            m_cause = findings;
    }
    // One that is misspelt defines what it was meant to.
    const bool misspelt = m_skipped == 0 && m_cause && FindDefining(name) == nullptr;
    const GuString meant = misspelt ? FromUtf8(m_log[*m_cause].suggestion) : GuString(name);
    m_references.Hide(meant.c_str(), attributes, markup, m_cause);
    ++m_skipped;
}

void DocumentChecker::OnEndElement(std::size_t markup)
{
    if (Depth() > 0)
        m_comments.EndElement(Depth(), markup);
    if (m_skipped > 0 || m_open.IsEmpty()) {
        EndUnread(markup);
        return;
    }
    OpenElement& element = m_open.Innermost();
    if (element.strangers)
        m_log.Fix(element.strangers->renames.TakeCertain(
            [&](const ElementRule& meant) { return element.merged || m_open.CountOf(meant) > 0; }));
    const FindingId id = element.rule->type->withoutElements;
    if (id != FindingId::None && !element.hasElements)
        m_open.ReportLost(id, m_open.Tag(), {m_open.Name()}, message::NoElementInside(m_open.Name()));
    m_open.Close();
}

void DocumentChecker::OnText(const Anchor& anchor)
{
    if (m_skipped == 0 && !m_open.IsEmpty() && !std::exchange(m_open.Innermost().hasText, true))
        m_log.Report(FindingId::TextContent, anchor, {m_open.Name()}, message::TextIsSkipped(m_open.Name()));
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
    if (m_readComments)
        m_comments.Read(ToUtf8(text), markup, Depth());
}

/// Ends an element that is not read.
void DocumentChecker::EndUnread(std::size_t markup)
{
    if (m_skipped == 0) { // the root
        if (m_rootName) {
            m_rootName->edits =
                ElementRenames::Edits(kRootElement.name, m_rootName->edits[0].anchor.number, markup);
            m_log.Fix({std::move(*m_rootName)});
        }
    } else if (--m_skipped == 0 && std::exchange(m_inRenamed, false)) {
        m_open.GetStrangers().renames.End(markup);
    }
}

std::vector<PlacelessFinding> DocumentChecker::TakeFindings()
{
    if (!m_readable) // whether an edit helps could not be tried
        m_log.ForgetFixes();
    if (m_complete) // a definition may stand behind the place where the parser gave up
        m_references.ReportDangling();
    return m_log.Take();
}

/// Opens an element, or returns false when the reader passes over it with everything in it.
bool DocumentChecker::Enter(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                            std::size_t markup)
{
    OpenElement element;
    element.markup = markup;
    element.rule = &kRootElement;
    if (!m_open.IsEmpty()) {
        element.rule = FindRule(name, markup);
        if (!element.rule)
            return false;
        const OpenElement& parent = m_open.Innermost();
        element.number = ++m_open.CountOf(*element.rule);
        element.written = parent.written;
        element.level = parent.level + (element.rule->maxLevel ? 1 : 0);
        element.selector = parent.selector;
        element.merged = !element.rule->list && (parent.merged || element.number > 1);
    }
    m_known.Take(*element.rule->type, attributes);
    m_open.Open(std::move(element), m_known);
    if (CheckElement() && m_attributes.Check(m_known)) {
        KeepObject();
        return true;
    }
    m_open.Close();
    return false;
}

/// The rule by which an element in the innermost open one is read, or null when it is not.
const ElementRule* DocumentChecker::FindRule(const XMLCh* name, std::size_t markup)
{
    if (m_entities > 0) {
        const std::string shown = ToUtf8(name);
        m_log.Report(FindingId::EntityContent, {AnchorKind::Reference, m_entityMarkup}, {shown},
                     message::EntityContent(shown, m_entityName));
        return nullptr;
    }
    if (!CheckContent())
        return nullptr;
    OpenElement& parent = m_open.Innermost();
    const ElementRule* const rule = FindElement(*parent.rule->type, name);
    if (!rule)
        ReportUnknownElement(name, ++m_open.GetStrangers().numbers[ToUtf8(name)], markup);
    return rule;
}

void DocumentChecker::KeepObject()
{
    if (!m_keepObjects)
        return;
    const OpenElement& element = m_open.Innermost();
    for (const AttributeRule& rule : element.rule->type->attributes) {
        if (rule.defines != Definition::None)
            m_objects[rule.defines].push_back(element.markup);
    }
}

/// Checks an element that begins in the innermost open one. Returns false when no content is read there.
bool DocumentChecker::CheckContent()
{
    OpenElement& parent = m_open.Innermost();
    parent.hasElements = true;
    const FindingId id = std::exchange(parent.contentFinding, FindingId::None);
    if (id != FindingId::None) {
        m_open.ReportLost(id, m_open.Tag(), {m_open.Name()},
                          parent.contentRead || parent.rule->type->anyElements
                              ? message::ContentIgnored(m_open.Name(), false)
                              : message::ContentNotRead(m_open.Name()));
        parent.written = false;
    }
    return parent.contentRead;
}

/// Checks the innermost open element by itself. Returns false when it is not read.
bool DocumentChecker::CheckElement()
{
    OpenElement& element = m_open.Innermost();
    const ElementRule& rule = *element.rule;
    if (element.level > kMaxFolderDepth) {
        m_open.ReportLost(FindingId::FolderTooDeep, m_open.Tag(), {m_open.Name()}, message::FolderTooDeep());
        return false;
    }
    if (element.number > 1 && !rule.list) {
        const XmlAttribute* const value = m_known.FindValue();
        m_open.ReportLost(FindingId::MergedElement, m_open.Tag(), {m_open.Name()},
                          message::MergedElement(m_open.Name(), value ? ToUtf8(value->name) : std::string()));
    }
    bool written = rule.notWritten == FindingId::None;
    if (!written)
        m_open.ReportLost(rule.notWritten, m_open.Tag(), {m_open.Name()},
                          message::ElementNotWritten(m_open.Name()));
    if (rule.onlyFor)
        written = IsSelected(rule) && written;
    element.written = element.written && written;
    element.contentFinding = rule.type->contentNotWritten;
    element.contentRead = !rule.type->anyElements;
    return true;
}

/// Checks an element that is written for one type only. Returns false when this is another one.
bool DocumentChecker::IsSelected(const ElementRule& rule)
{
    const OpenElement& selector = m_open.Selector();
    const bool selected = selector.selects == Match::IgnoreCase
                              ? selector.selected.CompareNoCase(GuString(rule.onlyFor)) == 0
                              : selector.selected == rule.onlyFor;
    if (!selected)
        m_open.ReportLost(
            FindingId::OtherType, m_open.Tag(), {m_open.Name()},
            message::WrittenForAnotherType(m_open.Name(), rule.onlyFor, ToUtf8(selector.selected)));
    return selected;
}

void DocumentChecker::ReportUnknownElement(const XMLCh* name, std::size_t number, std::size_t markup)
{
    const std::string shown = ToUtf8(name);
    const ElementType& type = *m_open.Innermost().rule->type;
    const Suggestion meant = SuggestElement(type, shown);
    const std::vector<std::string> parents = ParentsOf(name);
    const bool misplaced = !meant.onlyCase && !parents.empty();
    const FindingId id = meant.onlyCase ? FindingId::ElementCase
                         : misplaced    ? FindingId::MisplacedElement
                                        : FindingId::UnknownElement;
    Sentence sentence = meant.onlyCase ? message::ElementCase(shown, meant.name)
                        : misplaced    ? message::MisplacedElement(shown, parents, meant.name)
                                       : message::UnknownElement(shown, meant.name);
    m_path.Enter(shown, false, number);
    const bool kept =
        m_log.Report(id, {AnchorKind::TagName, markup}, {shown, meant.name}, std::move(sentence)) != nullptr;
    m_path.Leave();
    m_inRenamed = kept && meant.certain && !misplaced;
    if (m_inRenamed)
        m_open.GetStrangers().renames.Propose(
            m_log.Last(), *FindElement(type, GuString(meant.name.c_str()).c_str()), markup);
}

} // namespace tal
