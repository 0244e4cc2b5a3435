#include "TalAttributeSchemaHost/scan/Markup.h"

#include <algorithm>
#include <array>
#include <utility>

#include "TalAttributeSchemaHost/scan/SourceText.h"

namespace tal {

namespace {

constexpr std::string_view kCdata = "<![CDATA[";
constexpr std::string_view kCdataEnd = "]]>";

bool IsSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool IsNameCharacter(char character)
{
    const bool letter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
    const bool digit = character >= '0' && character <= '9';
    return letter || digit || character == '_' || character == ':' || character == '-' || character == '.' ||
           static_cast<unsigned char>(character) >= 0x80;
}

bool StartsWith(std::string_view text, std::size_t position, std::string_view what)
{
    return text.compare(position, what.size(), what) == 0;
}

/// Behind the next `what`, or the end of the text.
std::size_t Behind(std::string_view text, std::size_t position, std::string_view what)
{
    const std::size_t found = text.find(what, position);
    return found == std::string_view::npos ? text.size() : found + what.size();
}

std::size_t BehindName(std::string_view text, std::size_t position)
{
    while (position < text.size() && IsNameCharacter(text[position]))
        ++position;
    return position;
}

std::size_t BehindSpace(std::string_view text, std::size_t position)
{
    while (position < text.size() && IsSpace(text[position]))
        ++position;
    return position;
}

/// Behind a tag or a declaration: a ">" in a literal does not end it.
std::size_t BehindTag(std::string_view text, std::size_t position)
{
    for (; position < text.size(); ++position) {
        const char character = text[position];
        if (character == '>')
            return position + 1;
        if (character == '"' || character == '\'')
            position = std::min(text.find(character, position + 1), text.size() - 1);
    }
    return position;
}

/// Behind a document type. Calls `visit(Span)` for every literal in it, without the quotes.
template <class Visit>
std::size_t ForEachLiteral(std::string_view text, std::size_t position, Visit&& visit)
{
    bool inSubset = false;
    int declarations = 0; // that are open
    while (position < text.size()) {
        const char character = text[position];
        if (StartsWith(text, position, "<!--")) {
            position = Behind(text, position + 4, "-->");
            continue;
        }
        if (StartsWith(text, position, "<?")) {
            position = Behind(text, position, "?>");
            continue;
        }
        ++position;
        if (character == '"' || character == '\'') {
            const std::size_t end = std::min(text.find(character, position), text.size());
            visit(Span{position, end});
            position = std::min(end + 1, text.size());
        } else if (character == '[') {
            inSubset = true;
        } else if (character == ']') {
            inSubset = false;
        } else if (character == '<') {
            ++declarations;
        } else if (character == '>' && --declarations == 0 && !inSubset) {
            return position;
        }
    }
    return position;
}

bool IsPredefined(std::string_view name)
{
    constexpr std::array<std::string_view, 5> names = {"lt", "gt", "amp", "quot", "apos"};
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// The length of a character reference to white space at `position`, or 0.
std::size_t SpaceReference(std::string_view text, std::size_t position)
{
    if (!StartsWith(text, position, "&#"))
        return 0;
    const std::size_t end = text.find(';', position);
    if (end == std::string_view::npos)
        return 0;
    const bool hexadecimal = StartsWith(text, position, "&#x");
    std::string_view digits =
        text.substr(position + (hexadecimal ? 3 : 2), end - position - (hexadecimal ? 3 : 2));
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    constexpr std::array<std::string_view, 4> decimals = {"32", "9", "10", "13"};
    constexpr std::array<std::string_view, 6> hexadecimals = {"20", "9", "A", "a", "D", "d"};
    const bool space = hexadecimal
                           ? std::find(hexadecimals.begin(), hexadecimals.end(), digits) != hexadecimals.end()
                           : std::find(decimals.begin(), decimals.end(), digits) != decimals.end();
    return space ? end + 1 - position : 0;
}

} // namespace

std::optional<Markup> MarkupReader::Next()
{
    while (m_position < m_text.size()) {
        const std::size_t begin = m_position++;
        const auto markup = [&](MarkupKind kind, std::size_t end) {
            m_position = end;
            Markup found;
            found.begin = begin;
            found.end = end;
            found.kind = kind;
            return found;
        };
        if (m_text[begin] == '&') {
            const std::size_t end = BehindName(m_text, m_position);
            const std::string_view name = m_text.substr(m_position, end - m_position);
            if (!name.empty() && !IsPredefined(name))
                return markup(MarkupKind::Reference, std::min(end + 1, m_text.size()));
        } else if (m_text[begin] == '<') {
            const char next = m_position < m_text.size() ? m_text[m_position] : '\0';
            if (next != '!' && next != '?') // as nearly always
                return markup(MarkupKind::Tag, BehindTag(m_text, begin));
            if (StartsWith(m_text, begin, "<!--"))
                return markup(MarkupKind::Comment, Behind(m_text, begin + 4, "-->"));
            if (StartsWith(m_text, begin, kCdata))
                m_position = Behind(m_text, begin, kCdataEnd);
            else if (begin == 0 && StartsWith(m_text, begin, "<?xml") && m_text.size() > 5 &&
                     IsSpace(m_text[5]))
                return markup(MarkupKind::XmlDeclaration, Behind(m_text, begin, "?>"));
            else if (StartsWith(m_text, begin, "<?"))
                return markup(MarkupKind::Instruction, Behind(m_text, begin, "?>"));
            else if (StartsWith(m_text, begin, "<!DOCTYPE"))
                return markup(MarkupKind::DocumentType, ForEachLiteral(m_text, begin, [](Span) {}));
            else
                return markup(MarkupKind::Tag, BehindTag(m_text, begin));
        }
    }
    return std::nullopt;
}

Span TagName(std::string_view text, Span tag)
{
    std::size_t begin = tag.begin;
    while (begin < tag.end && !IsNameCharacter(text[begin]))
        ++begin;
    return {begin, BehindName(text, begin)};
}

TagAttributes::TagAttributes(std::string_view text, Span tag) : m_text(text)
{
    std::size_t position = TagName(text, tag).end;
    while ((position = BehindSpace(text, position)) < tag.end && IsNameCharacter(text[position])) {
        AttributeSpans attribute;
        attribute.name = {position, BehindName(text, position)};
        position = BehindSpace(text, attribute.name.end);
        if (position >= tag.end || text[position] != '=')
            break;
        position = BehindSpace(text, position + 1);
        if (position >= tag.end || (text[position] != '"' && text[position] != '\''))
            break;
        attribute.value = {position + 1, std::min(text.find(text[position], position + 1), tag.end)};
        m_attributes.push_back(attribute);
        position = std::min(attribute.value.end + 1, tag.end);
    }
    std::sort(m_attributes.begin(), m_attributes.end(),
              [&](const AttributeSpans& left, const AttributeSpans& right) {
                  return std::pair(NameOf(left), left.name.begin) <
                         std::pair(NameOf(right), right.name.begin);
              });
}

const AttributeSpans* TagAttributes::Find(std::string_view name) const
{
    const auto found = std::lower_bound(
        m_attributes.begin(), m_attributes.end(), name,
        [&](const AttributeSpans& attribute, std::string_view wanted) { return NameOf(attribute) < wanted; });
    return found != m_attributes.end() && NameOf(*found) == name ? &*found : nullptr;
}

Span TrimmedText(std::string_view text, Span between)
{
    for (bool trimmed = true; trimmed && between.begin < between.end;) {
        const std::size_t reference = SpaceReference(text, between.begin);
        const char first = text[between.begin];
        const std::size_t skipped = IsSpace(first)                               ? 1
                                    : reference > 0                              ? reference
                                    : StartsWith(text, between.begin, kCdata)    ? kCdata.size()
                                    : StartsWith(text, between.begin, kCdataEnd) ? kCdataEnd.size()
                                                                                 : 0;
        between.begin += skipped;
        trimmed = skipped > 0;
    }
    const auto inside = [&] { return text.substr(between.begin, between.end - between.begin); };
    while (between.end > between.begin) {
        const std::string_view rest = inside();
        if (IsSpace(rest.back()))
            --between.end;
        else if (rest.size() >= kCdataEnd.size() &&
                 StartsWith(rest, rest.size() - kCdataEnd.size(), kCdataEnd))
            between.end -= kCdataEnd.size();
        else
            break;
    }
    return between;
}

std::map<std::string_view, Span> Literals(std::string_view text, Span documentType)
{
    std::map<std::string_view, Span> literals;
    ForEachLiteral(text.substr(0, documentType.end), documentType.begin, [&](Span literal) {
        literals.emplace(text.substr(literal.begin, literal.end - literal.begin), literal);
    });
    return literals;
}

Span ReportedSpan(std::string_view text, std::size_t place, bool gaveUp)
{
    const char last = place > 0 ? text[place - 1] : '\0';
    const auto nameBefore = [&](std::size_t end) {
        std::size_t begin = end;
        while (begin > 0 && IsNameCharacter(text[begin - 1]))
            --begin;
        return Span{begin, end};
    };
    if (last == ';') { // a reference
        const std::size_t ampersand = text.rfind('&', place);
        if (ampersand != std::string_view::npos)
            return {ampersand, place};
    }
    if (last == '=')
        return nameBefore(place - 1);
    if (last == '<' || last == '&')
        return {place - 1, place};
    if (last == '>' && StartsWith(text, 0, "<?xml") && text.find('>') == place - 1) {
        // Behind the XML declaration only its encoding is left to complain about.
        const TagAttributes attributes(text, {0, place});
        if (const AttributeSpans* const encoding = attributes.Find("encoding"))
            return encoding->value;
    }
    if (!gaveUp) {
        if (IsNameCharacter(last))
            return nameBefore(place);
        if ((last == '"' || last == '\'') && place > 1) {
            const std::size_t open = text.rfind(last, place - 2);
            if (open != std::string_view::npos)
                return {open + 1, place - 1};
        }
        if (last == '>') {
            const std::size_t tag = text.rfind('<', place - 1);
            if (tag != std::string_view::npos)
                return TagName(text, {tag, place});
        }
    }
    const std::size_t name = BehindName(text, place);
    const std::size_t one =
        place < text.size() && !IsSpace(text[place]) ? place + Utf8Length(text[place]) : place;
    return {place, std::min(std::max(name, one), text.size())};
}

} // namespace tal
