// Walks a document beside the format table and says what the reader will do with it.
#include "tools/talschema/DocumentChecker.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include <xercesc/util/XMLString.hpp>

#include "TalAttributeSchemaReader/builders/attributes/YesNo.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntityLoadCaseBuilder.h"
#include "TalAttributeSchemaReader/document/ReadingConventions.h"
#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"
#include "TalAttributeSchemaReader/model/genutl/Utf16.h"
#include "tools/talschema/NearNames.h"
#include "tools/talschema/Text.h"

namespace {

constexpr std::size_t kMaxShownLength = 60;
constexpr std::size_t kMaxPathSteps = 24;

/// Safe for a terminal, and cut short where it is long.
std::string Shown(const GuString& text)
{
    if (text.GetLength() <= kMaxShownLength)
        return Printable(text);
    const std::size_t end = kMaxShownLength - (IsHighSurrogate(text.c_str()[kMaxShownLength - 1]) ? 1 : 0);
    return Printable(GuString(text.c_str(), static_cast<int>(end))) + "...";
}

std::string Quoted(const GuString& text)
{
    return '"' + Shown(text) + '"';
}

std::string Step(const GuString& name, bool list, std::size_t number)
{
    const std::string step = '/' + Shown(name);
    return list || number > 1 ? step + '[' + std::to_string(number) + ']' : step;
}

const ElementRule* FindElement(const ElementType& type, const XMLCh* name)
{
    const auto found = std::find_if(type.elements.begin(), type.elements.end(),
                                    [&](const ElementRule& rule) { return NodeName(name) == rule.name; });
    return found == type.elements.end() ? nullptr : found;
}

/// True when an attribute with this name could be read as `rule` says.
bool Matches(const ElementType& type, const AttributeRule& rule, const XMLCh* name)
{
    // A name that is not read is not matched by the reader either.
    if (type.attributeNames == Match::IgnoreCase && rule.notRead == FindingId::None)
        return GuString(name).CompareNoCase(rule.name) == 0;
    return NodeName(name) == rule.name;
}

/// The attribute that is read as `rule` says, or null. Of several spellings the reader meets the first one in
/// the order of character codes.
const XmlAttribute* FindAttribute(const ElementType& type, const AttributeRule& rule,
                                  const std::vector<XmlAttribute>& attributes)
{
    const XmlAttribute* first = nullptr;
    for (const XmlAttribute& attribute : attributes) {
        if (Matches(type, rule, attribute.name) &&
            (!first || xercesc::XMLString::compareString(attribute.name, first->name) < 0))
            first = &attribute;
    }
    return first;
}

template <class Rule>
std::vector<std::string> NamesOf(const Rows<Rule>& rules)
{
    std::vector<std::string> names;
    for (const Rule& rule : rules)
        names.emplace_back(rule.name);
    return names;
}

std::string WithTheSameLetters(const std::string& name, const std::vector<std::string>& known)
{
    const auto found = std::find_if(known.begin(), known.end(), [&](const std::string& candidate) {
        return EqualIgnoringCase(name, candidate);
    });
    return found == known.end() ? std::string() : *found;
}

std::string DidYouMean(const std::string& name)
{
    return name.empty() ? std::string() : "; did you mean \"" + name + "\"?";
}

/// The elements that an element of this name is read in: `"A", "B" or "C"`; empty when there are none.
std::string ParentsOf(const XMLCh* name)
{
    if (NodeName(name) == kRootElement.name)
        return "the place of the root";
    std::set<std::string> parents;
    for (const ElementType& parentType : kElementTypes) {
        if (!FindElement(parentType, name))
            continue;
        for (const ElementType& type : kElementTypes) {
            for (const ElementRule& rule : type.elements) {
                if (rule.type == &parentType)
                    parents.insert('"' + std::string(rule.name) + '"');
            }
        }
        if (kRootElement.type == &parentType)
            parents.insert('"' + std::string(kRootElement.name) + '"');
    }
    std::string list;
    std::size_t left = parents.size();
    for (const std::string& parent : parents) {
        list += parent;
        if (--left > 0)
            list += left == 1 ? " or " : ", ";
    }
    return list;
}

bool BelongsToXml(const GuString& name)
{
    const std::string narrow = ToUtf8(name);
    const auto startsWith = [&](const std::string& prefix) { return narrow.rfind(prefix, 0) == 0; };
    return narrow == "xmlns" || startsWith("xmlns:") || startsWith("xml:") || startsWith("xsi:");
}

bool CountsAsYes(const GuString& value, Match flag)
{
    return flag == Match::Exact ? IsYes(value) : IsYesIgnoringCase(value);
}

bool IsFlagValue(const GuString& value, Match flag)
{
    return CountsAsYes(value, flag) ||
           (flag == Match::Exact ? value.Compare("No") : value.CompareNoCase("No")) == 0;
}

/// False when a written document holds something else in the place of a character.
bool SurvivesWriting(const GuString& value)
{
    const GuChar* const end = value.c_str() + value.GetLength();
    const auto isPlain = [](GuChar unit) { return unit >= 0x20 && unit < 0x7F; };
    return std::all_of(value.c_str(), end, isPlain) ||
           GuString(GuConversionAllocator().UnicodeToAnsi(value.c_str())) == value;
}

const char* NameOf(Definition kind)
{
    switch (kind) {
    case Definition::Attribute:
        return "attribute definition";
    case Definition::File:
        return "file kind";
    case Definition::Group:
        return "attribute group";
    case Definition::Entity:
        return "entity";
    case Definition::None:
        break;
    }
    return "";
}

} // namespace

void DocumentChecker::OnProblem(Problem problem, const GuString& text, const Place& place)
{
    FindingId id = FindingId::NotWellFormed;
    switch (problem) {
    case Problem::Warning:
        id = FindingId::ParserWarning;
        break;
    case Problem::Error:
        id = FindingId::NotValid;
        break;
    case Problem::FatalError:
        m_complete = false;
        break;
    case Problem::WrongRoot:
        id = FindingId::WrongRoot;
        break;
    }
    Report(id, place, Path(), Printable(text) + "; nothing of the document is read");
}

void DocumentChecker::OnExternalReference(const std::string& subject, const GuString& target,
                                          const Place& place)
{
    Report(FindingId::ExternalReference, place, Path(),
           subject + " refers to " + Quoted(target) + ", which the reader fetches when it needs it");
}

void DocumentChecker::OnStartElement(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                                     const Place& place)
{
    if (m_skipped > 0 || !Enter(name, attributes, place))
        ++m_skipped;
}

void DocumentChecker::OnEndElement()
{
    if (m_skipped > 0) {
        --m_skipped;
        return;
    }
    const OpenElement& element = m_open.back();
    const FindingId id = element.rule->type->withoutElements;
    if (id != FindingId::None && !element.hasElements)
        ReportLost(id, Quoted(element.rule->name) + " is left out by a rewrite: there is no element in it");
    m_open.pop_back();
}

void DocumentChecker::OnText(const Place& place)
{
    if (m_skipped > 0 || m_open.empty() || std::exchange(m_open.back().hasText, true))
        return;
    Report(FindingId::TextContent, place, Path(),
           "the text in " + Quoted(m_open.back().rule->name) + " is skipped: values are attributes");
}

void DocumentChecker::OnStartEntity(const XMLCh* name, const Place& place)
{
    if (m_entities++ == 0) {
        m_entityName = Quoted(name);
        m_entityPlace = place;
    }
}

void DocumentChecker::OnEndEntity()
{
    --m_entities;
}

std::vector<Finding> DocumentChecker::TakeFindings()
{
    if (m_complete) { // a definition may stand behind the place where the parser gave up
        for (const PendingReference& reference : m_pending)
            Report(reference);
    }
    const auto key = [](const Finding& finding) {
        return std::tie(finding.place.file, finding.place.line, finding.place.column);
    };
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [&](const Finding& left, const Finding& right) { return key(left) < key(right); });
    return std::move(m_findings);
}

/// Opens an element, or returns false when the reader passes over it with everything in it.
bool DocumentChecker::Enter(const XMLCh* name, const std::vector<XmlAttribute>& attributes,
                            const Place& place)
{
    OpenElement element;
    element.place = place;
    element.rule = &kRootElement;
    if (!m_open.empty()) {
        if (m_entities > 0) {
            Report(FindingId::EntityContent, m_entityPlace, Path(),
                   Quoted(name) + " is skipped with everything in it: it comes out of the entity " +
                       m_entityName);
            return false;
        }
        if (!CheckContent())
            return false;
        OpenElement& parent = m_open.back();
        element.number = ++parent.numbers[ToUtf8(name)];
        element.rule = FindElement(*parent.rule->type, name);
        if (!element.rule) {
            ReportUnknownElement(name, element.number, place);
            return false;
        }
        element.written = parent.written;
        element.level = parent.level + (element.rule->maxLevel ? 1 : 0);
        element.selector = parent.selector;
    }
    m_open.push_back(std::move(element));
    if (CheckElement() && CheckAttributes(attributes))
        return true;
    m_open.pop_back();
    return false;
}

/// Checks an element that begins in the innermost open one. Returns false when no content is read there.
bool DocumentChecker::CheckContent()
{
    OpenElement& parent = m_open.back();
    parent.hasElements = true;
    const FindingId id = std::exchange(parent.contentFinding, FindingId::None);
    if (id != FindingId::None) {
        const std::string name = Quoted(parent.rule->name);
        ReportLost(id, parent.contentRead || parent.rule->type->anyElements
                           ? "the content of " + name + " is ignored; a rewrite leaves it empty"
                           : "the content of " + name + " is not read: the element has no attributes");
        parent.written = false;
    }
    return parent.contentRead;
}

/// Checks the innermost open element by itself. Returns false when it is not read.
bool DocumentChecker::CheckElement()
{
    OpenElement& element = m_open.back();
    const ElementRule& rule = *element.rule;
    const std::string name = Quoted(rule.name);
    if (element.level > kMaxFolderDepth) {
        ReportLost(FindingId::FolderTooDeep, "the folder is left out with everything in it: only " +
                                                 std::to_string(kMaxFolderDepth) + " levels are read");
        return false;
    }
    if (element.number > 1 && !rule.list)
        ReportLost(FindingId::MergedElement,
                   name + " is read like more of the first one, and a rewrite makes one of them");
    bool written = rule.notWritten == FindingId::None;
    if (!written)
        ReportLost(rule.notWritten, "a rewrite leaves " + name + " out with everything in it");
    if (rule.onlyFor) {
        const OpenElement& selector = m_open[element.selector];
        const bool selected = selector.selects == Match::IgnoreCase
                                  ? selector.selected.CompareNoCase(rule.onlyFor) == 0
                                  : selector.selected == rule.onlyFor;
        if (!selected)
            ReportLost(FindingId::OtherType, "a rewrite leaves " + name +
                                                 " out: it is written for the type " + Quoted(rule.onlyFor) +
                                                 " only, and this is " + Quoted(selector.selected));
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
            Report(type.withoutAttributes, Quoted(element.rule->name) + " is skipped: it has no attributes");
            return false;
        }
        if (type.contentWithoutAttributes != FindingId::None) {
            element.contentFinding = type.contentWithoutAttributes;
            element.contentRead = false;
        }
    }
    bool read = true;
    std::vector<const XmlAttribute*> taken;
    for (const AttributeRule& rule : type.attributes) {
        if (const XmlAttribute* attribute = FindAttribute(type, rule, attributes)) {
            taken.push_back(attribute);
            read = CheckAttribute(rule, *attribute, attributes) && read;
        } else if (rule.required) {
            Report(FindingId::MissingAttribute,
                   Quoted(element.rule->name) + " is skipped: it has no attribute " + Quoted(rule.name));
            read = false;
        }
    }
    for (const XmlAttribute& attribute : attributes) {
        if (std::find(taken.begin(), taken.end(), &attribute) == taken.end())
            CheckUnreadAttribute(attribute);
    }
    return read;
}

/// Checks an attribute that the table knows. Returns false when its value keeps the element from being read.
bool DocumentChecker::CheckAttribute(const AttributeRule& rule, const XmlAttribute& attribute,
                                     const std::vector<XmlAttribute>& attributes)
{
    OpenElement& element = m_open.back();
    const GuString value(attribute.value);
    if (rule.ifEmpty != FindingId::None && value.IsEmpty()) {
        ReportLost(rule.ifEmpty, Quoted(element.rule->name) + " is not read: its attribute " +
                                     Quoted(attribute.name) + " is empty");
        return false;
    }
    if (!(NodeName(attribute.name) == rule.name))
        ReportLost(FindingId::RenamedAttribute, Quoted(attribute.name) + " is read as " + Quoted(rule.name) +
                                                    ", and a rewrite spells it so");
    if (rule.selects != Match::None) {
        element.selector = m_open.size() - 1;
        element.selects = rule.selects;
        element.selected = value;
    }
    CheckValue(rule, value);
    if (rule.notWritten != FindingId::None)
        ReportLost(rule.notWritten,
                   Quoted(attribute.name) +
                       " is read, but a rewrite puts the value under another name, which is not read");
    else if (rule.notRead != FindingId::None)
        CheckUnreadValue(rule, value, attributes);
    else if (rule.flag == Match::None && !SurvivesWriting(value))
        ReportLost(FindingId::UnwritableCharacter,
                   "a rewrite puts \"?\" for a character in the value of " + Quoted(attribute.name));
    return true;
}

void DocumentChecker::CheckValue(const AttributeRule& rule, const GuString& value)
{
    if (rule.flag != Match::None && !IsFlagValue(value, rule.flag))
        Report(FindingId::FlagValue, "the value " + Quoted(value) + " of " + Quoted(rule.name) +
                                         " counts as No: the flag is Yes or No" +
                                         (rule.flag == Match::Exact ? ", in exactly these letters" : ""));
    if (rule.defines != Definition::None)
        Define(rule.defines, value);
    if (rule.refersTo != Definition::None)
        Refer(rule, value);
}

/// Checks the value of an attribute that is written from something else.
void DocumentChecker::CheckUnreadValue(const AttributeRule& rule, const GuString& value,
                                       const std::vector<XmlAttribute>& attributes)
{
    GuString written;
    if (rule.writtenFrom) {
        const ElementType& type = *m_open.back().rule->type;
        const auto source =
            std::find_if(type.attributes.begin(), type.attributes.end(), [&](const AttributeRule& other) {
                return std::string(other.name) == rule.writtenFrom;
            });
        if (const XmlAttribute* attribute = FindAttribute(type, *source, attributes))
            written = attribute->value;
    }
    bool kept = value == written;
    if (rule.flag != Match::None) {
        kept = CountsAsYes(value, rule.flag) == CountsAsYes(written, rule.flag);
        written = YesNo(CountsAsYes(written, rule.flag));
    }
    if (!kept)
        ReportLost(rule.notRead, Quoted(rule.name) + " is not read; a rewrite sets it to " + Quoted(written));
}

/// Says why nobody reads an attribute.
void DocumentChecker::CheckUnreadAttribute(const XmlAttribute& attribute)
{
    OpenElement& element = m_open.back();
    const ElementType& type = *element.rule->type;
    const std::string shown = Quoted(attribute.name);
    if (type.anyAttributes) {
        const FindingId id = std::exchange(element.contentFinding, FindingId::None);
        if (id != FindingId::None)
            ReportLost(id, "the attributes and the content of " + Quoted(element.rule->name) +
                               " are ignored; a rewrite leaves it empty");
        return;
    }
    for (const AttributeRule& rule : type.attributes) {
        if (Matches(type, rule, attribute.name)) {
            Report(FindingId::SupersededAttribute, "attribute " + shown +
                                                       " is skipped: another spelling of " +
                                                       Quoted(rule.name) + " comes before it");
            return;
        }
    }
    if (BelongsToXml(attribute.name)) {
        ReportLost(FindingId::NamespaceAttribute, "attribute " + shown +
                                                      " is no part of the format; the reader skips it and a "
                                                      "rewrite leaves it out");
        return;
    }
    const std::vector<std::string> known = NamesOf(type.attributes);
    const std::string name = ToUtf8(attribute.name);
    const std::string sameLetters = WithTheSameLetters(name, known);
    if (sameLetters.empty())
        Report(FindingId::UnknownAttribute,
               "unknown attribute " + shown + " is skipped" + DidYouMean(NearestName(name, known)));
    else
        Report(FindingId::AttributeCase,
               "attribute " + shown + " is skipped, for letter case counts" + DidYouMean(sameLetters));
}

void DocumentChecker::ReportUnknownElement(const XMLCh* name, std::size_t number, const Place& place)
{
    const std::string path = Path() + Step(name, false, number);
    const std::vector<std::string> known = NamesOf(m_open.back().rule->type->elements);
    const std::string sameLetters = WithTheSameLetters(ToUtf8(name), known);
    const std::string parents = ParentsOf(name);
    if (!sameLetters.empty())
        Report(FindingId::ElementCase, place, path,
               "element " + Quoted(name) + " is skipped with everything in it, for letter case counts" +
                   DidYouMean(sameLetters));
    else if (!parents.empty())
        Report(FindingId::MisplacedElement, place, path,
               "element " + Quoted(name) + " is skipped here with everything in it; it belongs in " +
                   parents);
    else
        Report(FindingId::UnknownElement, place, path,
               "unknown element " + Quoted(name) + " is skipped with everything in it" +
                   DidYouMean(NearestName(ToUtf8(name), known)));
}

void DocumentChecker::Define(Definition kind, const GuString& id)
{
    if (id.IsEmpty())
        return; // as good as absent
    const auto [first, isNew] = m_definitions[kind].emplace(id, m_open.back().place);
    if (isNew)
        return;
    const bool entity = kind == Definition::Entity;
    Report(entity ? FindingId::DuplicateType : FindingId::DuplicateId,
           std::string("another ") + NameOf(kind) + " has the " + (entity ? "type " : "ID ") + Quoted(id) +
               " already, in line " + std::to_string(first->second.line) + "; the reader keeps both");
}

void DocumentChecker::Refer(const AttributeRule& rule, const GuString& id)
{
    // Attributes that may be absent are written empty then.
    if ((id.IsEmpty() && !rule.required) || m_definitions[rule.refersTo].count(id) > 0)
        return;
    m_pending.push_back({rule.refersTo, id, rule.name, m_open.back().place, Path()});
}

void DocumentChecker::Report(const PendingReference& reference)
{
    if (m_definitions[reference.kind].count(reference.id) > 0)
        return;
    Report(FindingId::UnknownReference, reference.place, reference.path,
           Quoted(reference.attribute) + " names no " + NameOf(reference.kind) +
               ": there is none with the ID " + Quoted(reference.id) + "; the reader keeps it unchecked");
}

std::string DocumentChecker::Path() const
{
    std::string path;
    for (std::size_t i = 0; i < m_open.size(); ++i) {
        // A path through a thousand folders helps nobody.
        if (m_open.size() > kMaxPathSteps && i == kMaxPathSteps / 2) {
            path += "/...";
            i = m_open.size() - kMaxPathSteps / 2;
        }
        const OpenElement& element = m_open[i];
        path += Step(element.rule->name, element.rule->list, element.number);
    }
    return path;
}

void DocumentChecker::Report(FindingId id, const Place& place, std::string path, std::string message)
{
    m_findings.push_back({id, place, std::move(path), std::move(message)});
}

void DocumentChecker::Report(FindingId id, std::string message)
{
    Report(id, m_open.back().place, Path(), std::move(message));
}

void DocumentChecker::ReportLost(FindingId id, std::string message)
{
    if (m_open.back().written)
        Report(id, std::move(message));
}

std::vector<Finding> CheckFile(const GuString& path)
{
    DocumentChecker checker;
    ScanFile(path, checker);
    return checker.TakeFindings();
}

std::vector<Finding> CheckStandardInput()
{
    DocumentChecker checker;
    ScanStandardInput(checker);
    return checker.TakeFindings();
}
