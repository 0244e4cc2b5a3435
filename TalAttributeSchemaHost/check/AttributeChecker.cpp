#include "TalAttributeSchemaHost/check/AttributeChecker.h"

#include <set>
#include <utility>

#include "TalAttributeSchemaHost/messages/FindingMessages.h"
#include "TalAttributeSchemaHost/table/FormatLookup.h"
#include "TalAttributeSchemaHost/table/NameSuggestions.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/format/NodeName.h"
#include "TalAttributeSchemaReader/format/YesNo.h"
#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

namespace tal {

bool AttributeChecker::Check(const KnownAttributes& attributes)
{
    const OpenElement& element = m_open.Innermost();
    const ElementType& type = *element.rule->type;
    if (attributes.All().empty() && !CheckNone())
        return false;
    bool read = true;
    for (const AttributeRule& rule : type.attributes) {
        if (const XmlAttribute* attribute = attributes.Find(rule)) {
            read = CheckKnown(rule, *attribute, attributes) && read;
        } else if (rule.required) {
            m_log.Report(FindingId::MissingAttribute, m_open.Tag(), {rule.name},
                         message::MissingAttribute(m_open.Name(), rule.name));
            read = false;
        }
    }
    for (const XmlAttribute* attribute : attributes.Others())
        CheckUnread(*attribute);
    std::vector<FixProposal> renames = m_renames.TakeCertain(type, attributes.All(), element.markup);
    if (!element.merged) // or it would replace what was read before
        m_log.Fix(std::move(renames));
    return read;
}

/// Checks an element without attributes. Returns false when it is not read for that.
bool AttributeChecker::CheckNone()
{
    OpenElement& element = m_open.Innermost();
    const ElementType& type = *element.rule->type;
    if (type.withoutAttributes != FindingId::None) {
        m_log.Report(type.withoutAttributes, m_open.Tag(), {m_open.Name()},
                     message::NoAttributes(m_open.Name()));
        return false;
    }
    if (type.contentWithoutAttributes != FindingId::None) {
        element.contentFinding = type.contentWithoutAttributes;
        element.contentRead = false;
    }
    return true;
}

/// Checks an attribute that the table knows. Returns false when its value keeps the element from being read.
bool AttributeChecker::CheckKnown(const AttributeRule& rule, const XmlAttribute& attribute,
                                  const KnownAttributes& attributes)
{
    const auto name = [&] { return ToUtf8(attribute.name); };
    const auto anchor = [&](AnchorKind kind) { return m_open.AttributeOf(kind, attribute.name); };
    if (rule.ifEmpty != FindingId::None && attribute.value.empty()) {
        m_open.ReportLost(rule.ifEmpty, anchor(AnchorKind::AttributeValue), {name()},
                          message::EmptyAttribute(m_open.Name(), name()));
        return false;
    }
    if (m_open.Innermost().rule->type->attributeNames == Match::IgnoreCase &&
        !(NodeName(attribute.name) == rule.name) &&
        m_open.ReportLost(FindingId::RenamedAttribute, anchor(AnchorKind::AttributeName), {name(), rule.name},
                          message::RenamedAttribute(name(), rule.name)))
        m_renames.Propose(m_log.Last(), attribute.name, rule.name);
    if (rule.selects != Match::None)
        m_open.SelectBy(rule.selects, attribute.value);
    CheckValue(rule, attribute);
    if (rule.notWritten != FindingId::None)
        m_open.ReportLost(rule.notWritten, anchor(AnchorKind::AttributeName), {name()},
                          message::AttributeNotWritten(name()));
    else if (rule.notRead != FindingId::None)
        CheckUnreadValue(rule, attribute, attributes);
    else if (rule.flag == Match::None && !SurvivesWriting(attribute.value))
        m_open.ReportLost(FindingId::UnwritableCharacter, anchor(AnchorKind::AttributeValue),
                          {ToUtf8(attribute.value.data())}, message::UnwritableCharacter(name()));
    if (m_codePage && rule.flag == Match::None && rule.notRead == FindingId::None)
        CheckCodePage(attribute);
    return true;
}

void AttributeChecker::CheckValue(const AttributeRule& rule, const XmlAttribute& attribute)
{
    if (rule.flag != Match::None && !IsFlagValue(attribute.value.data(), rule.flag))
        CheckFlag(rule, attribute);
    const std::size_t markup = m_open.Innermost().markup;
    if (rule.defines != Definition::None)
        m_references.Define(rule, attribute.value, markup);
    if (rule.refersTo != Definition::None)
        m_references.Refer(rule, attribute.value, markup);
}

/// Reports a flag that is neither Yes nor No.
void AttributeChecker::CheckFlag(const AttributeRule& rule, const XmlAttribute& attribute)
{
    const XMLCh* const value = attribute.value.data();
    const About about = {ToUtf8(value), SuggestFlag(value)};
    Anchor anchor = m_open.AttributeOf(AnchorKind::AttributeValue, attribute.name);
    PlacelessFinding* const finding =
        m_log.Report(FindingId::FlagValue, anchor, about,
                     message::BadFlag(about.subject, rule.name, rule.flag, about.suggestion));
    anchor.exact = true;
    if (finding && !about.suggestion.empty() && !m_open.Innermost().merged)
        finding->edits = {{std::move(anchor), about.suggestion}};
}

/// Checks the value of an attribute that is written from something else.
void AttributeChecker::CheckUnreadValue(const AttributeRule& rule, const XmlAttribute& unread,
                                        const KnownAttributes& attributes)
{
    const OpenElement& element = m_open.Innermost();
    const ElementType& type = *element.rule->type;
    const AttributeRule* const source = SourceOf(type, rule);
    const XmlAttribute* const attribute = source ? attributes.Find(*source) : nullptr;
    const GuString value = attribute ? GuString(attribute->value.data()) : GuString();
    bool kept = unread.value == value.c_str();
    std::string written = ToUtf8(value);
    if (rule.flag != Match::None) {
        const bool yes = CountsAsYes(value, rule.flag);
        kept = CountsAsYes(unread.value.data(), rule.flag) == yes;
        written = YesNo(yes);
    }
    const std::string meant = source && !attribute ? source->name : "";
    if (kept || !m_open.ReportLost(rule.notRead, {AnchorKind::AttributeName, element.markup, 0, rule.name},
                                   {rule.name, meant}, message::AttributeNotRead(rule.name, written, meant)))
        return;
    // A flag that says Yes was meant to be read; what else stands here may be there for another reader.
    if (rule.flag != Match::None && !meant.empty())
        m_renames.Propose(m_log.Last(), unread.name, meant);
}

void AttributeChecker::CheckCodePage(const XmlAttribute& attribute)
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
        m_open.ReportLost(FindingId::CodePage, m_open.AttributeOf(AnchorKind::AttributeValue, attribute.name),
                          {ToUtf8(value.data())},
                          message::OutsideCodePage(m_codePage->Number(), lost, ToUtf8(attribute.name)));
}

/// Says why nobody reads an attribute.
void AttributeChecker::CheckUnread(const XmlAttribute& attribute)
{
    OpenElement& element = m_open.Innermost();
    const ElementType& type = *element.rule->type;
    const std::string name = ToUtf8(attribute.name);
    if (type.anyAttributes) {
        const FindingId id = std::exchange(element.contentFinding, FindingId::None);
        if (id != FindingId::None)
            m_open.ReportLost(id, m_open.Tag(), {m_open.Name()},
                              message::ContentIgnored(m_open.Name(), true));
        return;
    }
    const Anchor anchor = m_open.AttributeOf(AnchorKind::AttributeName, attribute.name);
    for (const AttributeRule& rule : type.attributes) {
        if (Matches(type, rule, attribute.name)) {
            m_log.Report(FindingId::SupersededAttribute, anchor, {name},
                         message::SupersededAttribute(name, rule.name));
            return;
        }
    }
    if (BelongsToXml(name))
        m_open.ReportLost(FindingId::NamespaceAttribute, anchor, {name}, message::NamespaceAttribute(name));
    else
        ReportUnknown(name, attribute);
}

void AttributeChecker::ReportUnknown(const std::string& name, const XmlAttribute& attribute)
{
    const ElementType& type = *m_open.Innermost().rule->type;
    const Suggestion meant = SuggestAttribute(type, name);
    const FindingId id = meant.onlyCase ? FindingId::AttributeCase : FindingId::UnknownAttribute;
    Sentence sentence =
        meant.onlyCase ? message::AttributeCase(name, meant.name)
                       : message::UnknownAttribute(m_open.Name(), name, meant.name, ReadAttributes(type));
    if (m_log.Report(id, m_open.AttributeOf(AnchorKind::AttributeName, attribute.name), {name, meant.name},
                     std::move(sentence)) &&
        meant.certain)
        m_renames.Propose(m_log.Last(), attribute.name, meant.name);
}

} // namespace tal
