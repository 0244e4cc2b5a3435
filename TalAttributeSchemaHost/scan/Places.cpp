#include "TalAttributeSchemaHost/scan/Places.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <tuple>

#include "TalAttributeSchemaHost/scan/Markup.h"

namespace tal {

namespace {

/// One byte that is one character and no end of a line.
bool IsPlain(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte >= 0x20 && byte < 0x80;
}

/// Goes through the text character by character and knows the position of each.
class TextCursor
{
public:
    explicit TextCursor(const SourceText& source)
        : m_source(source),
          m_text(source.Utf8()),
          m_position{1, 1, 1, 1, source.FirstByte()},
          m_lineFeed(Find('\n')),
          m_carriageReturn(Find('\r'))
    {
    }

    const Position& GetPosition() const { return m_position; }
    std::size_t GetIndex() const { return m_index; }

    void GoTo(std::size_t index)
    {
        while (LineEnd() < std::min(index, m_text.size()))
            GoToNextLine();
        while (m_index < index && !AtEnd()) {
            SkipPlain(index);
            if (m_index < index && !AtEnd())
                Step();
        }
    }

    /// `column` counts UTF-16 units. Stays at the end of a line that is shorter.
    void GoTo(std::size_t line, std::size_t column)
    {
        while (m_position.line < line && LineEnd() < m_text.size())
            GoToNextLine();
        while (!AtEnd() && m_position.line < line)
            Step();
        while (!AtEnd() && m_position.line == line && m_position.utf16Column < column && !AtLineEnd())
            Step();
    }

private:
    bool AtEnd() const { return m_index >= m_text.size(); }
    bool AtLineEnd() const { return m_text[m_index] == '\n' || m_text[m_index] == '\r'; }

    /// The index of the character that ends the line, in a document in UTF-8. Where there is none, and in
    /// others, whose bytes must be counted one by one, the end of the text.
    std::size_t LineEnd()
    {
        if (!m_source.IsUtf8())
            return m_text.size();
        if (m_lineFeed < m_index)
            m_lineFeed = Find('\n');
        if (m_carriageReturn < m_index)
            m_carriageReturn = Find('\r');
        const bool both = m_carriageReturn + 1 == m_lineFeed;
        return both ? m_lineFeed : std::min(m_lineFeed, m_carriageReturn);
    }

    std::size_t Find(char character) const
    {
        return std::min(m_text.find(character, m_index), m_text.size());
    }

    void GoToNextLine()
    {
        m_index = LineEnd() + 1;
        m_position = {m_position.line + 1, 1, 1, 1, m_source.FirstByte() + m_index};
    }

    /// ASCII in one line of a document in UTF-8, which is nearly all of nearly every document.
    void SkipPlain(std::size_t end)
    {
        if (!m_source.IsUtf8())
            return;
        std::size_t next = m_index;
        while (next < std::min(end, m_text.size()) && IsPlain(m_text[next]))
            ++next;
        const std::size_t count = next - m_index;
        m_index = next;
        m_position.column += count;
        m_position.utf16Column += count;
        m_position.utf8Column += count;
        m_position.offset += count;
    }

    void Step()
    {
        const char character = m_text[m_index];
        const std::size_t length = Utf8Length(character);
        m_position.offset += m_source.BytesOfCharacter(m_index, m_character++);
        m_index = std::min(m_index + length, m_text.size());
        const bool carriageReturn =
            character == '\r' && (m_index == m_text.size() || m_text[m_index] != '\n');
        if (character == '\n' || carriageReturn) {
            m_position = {m_position.line + 1, 1, 1, 1, m_position.offset};
        } else {
            ++m_position.column;
            m_position.utf16Column += length == 4 ? 2 : 1;
            m_position.utf8Column += length;
        }
    }

    const SourceText& m_source;
    const std::string_view m_text;
    std::size_t m_index = 0;
    std::size_t m_character = 0; // counted where text was converted
    Position m_position;
    std::size_t m_lineFeed; // the next one from here on, once somebody looks
    std::size_t m_carriageReturn;
};

bool IsReport(const Anchor& anchor)
{
    return anchor.kind == AnchorKind::Report || anchor.kind == AnchorKind::FatalReport;
}

bool IsInDeclaration(const Anchor& anchor)
{
    return anchor.kind == AnchorKind::XmlVersion || anchor.kind == AnchorKind::XmlEncoding;
}

/// Those whose number is that of a markup.
bool IsCounted(const Anchor& anchor)
{
    switch (anchor.kind) {
    case AnchorKind::TagName:
    case AnchorKind::AttributeName:
    case AnchorKind::AttributeValue:
    case AnchorKind::Text:
    case AnchorKind::Reference:
    case AnchorKind::WholeMarkup:
        return true;
    default:
        return false;
    }
}

bool IsInTag(const Anchor& anchor)
{
    return anchor.kind == AnchorKind::AttributeName || anchor.kind == AnchorKind::AttributeValue;
}

bool IsUncounted(MarkupKind kind)
{
    return kind == MarkupKind::XmlDeclaration || kind == MarkupKind::DocumentType;
}

class PlaceFinder
{
public:
    PlaceFinder(const SourceText& source, const std::vector<const Anchor*>& anchors)
        : m_source(source), m_text(source.Utf8()), m_anchors(anchors), m_spans(anchors.size())
    {
    }

    std::vector<Range> Find()
    {
        FindProlog();
        FindMarkup();
        FindReports();
        std::vector<Range> ranges = Measure();
        for (std::size_t i = 0; i < m_anchors.size(); ++i) {
            const Anchor& anchor = *m_anchors[i];
            if (IsReport(anchor) && !anchor.name.empty())
                ranges[i].begin =
                    ranges[i].end = {anchor.number, anchor.column, anchor.column, anchor.column, 0};
            else if (anchor.kind == AnchorKind::Byte)
                EndBehindByte(ranges[i].end);
        }
        return ranges;
    }

private:
    std::vector<std::size_t> Sorted(bool (*wanted)(const Anchor&)) const
    {
        std::vector<std::size_t> order;
        for (std::size_t i = 0; i < m_anchors.size(); ++i) {
            if (wanted(*m_anchors[i]))
                order.push_back(i);
        }
        const auto key = [&](std::size_t i) { return std::tie(m_anchors[i]->number, m_anchors[i]->column); };
        std::sort(order.begin(), order.end(),
                  [&](std::size_t left, std::size_t right) { return key(left) < key(right); });
        return order;
    }

    /// What stands in front of the first tag and is not counted.
    void FindProlog()
    {
        std::optional<Markup> declaration;
        std::map<std::string_view, Span> literals;
        MarkupReader reader(m_text);
        for (auto markup = reader.Next(); markup && markup->kind != MarkupKind::Tag; markup = reader.Next()) {
            if (markup->kind == MarkupKind::XmlDeclaration)
                declaration = markup;
            else if (markup->kind == MarkupKind::DocumentType)
                literals = Literals(m_text, *markup);
        }
        for (std::size_t i = 0; i < m_anchors.size(); ++i) {
            const Anchor& anchor = *m_anchors[i];
            if (anchor.kind == AnchorKind::SystemLiteral) {
                const auto literal = literals.find(anchor.name);
                if (literal != literals.end())
                    m_spans[i] = literal->second;
            } else if (declaration && IsInDeclaration(anchor)) {
                const char* const name = anchor.kind == AnchorKind::XmlVersion ? "version" : "encoding";
                const TagAttributes attributes(m_text, *declaration);
                const AttributeSpans* const attribute = attributes.Find(name);
                m_spans[i] = attribute ? attribute->value : Span(*declaration);
            }
        }
    }

    void FindMarkup()
    {
        std::size_t count = 0;
        std::optional<Markup> markup;
        std::optional<TagAttributes> attributes; // of the markup, once somebody asks
        MarkupReader reader(m_text);
        for (const std::size_t i : Sorted(IsCounted)) {
            const Anchor& anchor = *m_anchors[i];
            for (; count < anchor.number && (markup = reader.Next()); attributes.reset())
                count += IsUncounted(markup->kind) ? 0 : 1;
            if (!markup)
                return;
            if (IsInTag(anchor) && !attributes)
                attributes.emplace(m_text, *markup);
            m_spans[i] = SpanOf(anchor, *markup, IsInTag(anchor) ? attributes->Find(anchor.name) : nullptr);
        }
    }

    /// `attribute` may be null.
    std::optional<Span> SpanOf(const Anchor& anchor, const Markup& markup,
                               const AttributeSpans* attribute) const
    {
        if (anchor.kind == AnchorKind::Reference || anchor.kind == AnchorKind::WholeMarkup)
            return markup;
        if (anchor.kind == AnchorKind::Text) {
            const std::optional<Markup> following = MarkupReader(m_text, markup.end).Next();
            return TrimmedText(m_text, {markup.end, following ? following->begin : m_text.size()});
        }
        if (!attribute)
            return anchor.exact ? std::nullopt : std::optional(TagName(m_text, markup));
        return anchor.kind == AnchorKind::AttributeName ? attribute->name : attribute->value;
    }

    void FindReports()
    {
        TextCursor cursor(m_source);
        for (const std::size_t i : Sorted(IsReport)) {
            const Anchor& anchor = *m_anchors[i];
            if (anchor.number == 0 || !anchor.name.empty())
                continue;
            cursor.GoTo(anchor.number, anchor.column);
            m_spans[i] = ReportedSpan(m_text, cursor.GetIndex(), anchor.kind == AnchorKind::FatalReport);
        }
    }

    std::vector<Range> Measure() const
    {
        struct Wanted
        {
            std::size_t index; // in the text
            std::size_t anchor;
            Position Range::*side;
        };
        std::vector<Wanted> wanted;
        for (std::size_t i = 0; i < m_spans.size(); ++i) {
            // The text ends in front of an invalid byte.
            const bool atByte = m_anchors[i]->kind == AnchorKind::Byte;
            if (m_spans[i] || atByte) {
                wanted.push_back({atByte ? m_text.size() : m_spans[i]->begin, i, &Range::begin});
                wanted.push_back({atByte ? m_text.size() : m_spans[i]->end, i, &Range::end});
            }
        }
        std::sort(wanted.begin(), wanted.end(),
                  [](const Wanted& left, const Wanted& right) { return left.index < right.index; });
        std::vector<Range> ranges(m_spans.size());
        TextCursor cursor(m_source);
        for (const Wanted& place : wanted) {
            cursor.GoTo(place.index);
            ranges[place.anchor].*place.side = cursor.GetPosition();
        }
        return ranges;
    }

    static void EndBehindByte(Position& end)
    {
        ++end.column;
        ++end.utf16Column;
        ++end.utf8Column;
        ++end.offset;
    }

    const SourceText& m_source;
    const std::string_view m_text;
    const std::vector<const Anchor*>& m_anchors;
    std::vector<std::optional<Span>> m_spans; // of the anchors; none where there is no place
};

} // namespace

std::vector<Range> FindPlaces(const SourceText& source, const std::vector<const Anchor*>& anchors)
{
    return PlaceFinder(source, anchors).Find();
}

std::map<std::size_t, std::string> LinesOf(const SourceText& source, const std::vector<Range>& ranges)
{
    std::vector<std::size_t> wanted;
    wanted.reserve(ranges.size());
    for (const Range& range : ranges)
        wanted.push_back(range.begin.line);
    std::sort(wanted.begin(), wanted.end());
    wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());

    const std::string_view text = source.Utf8();
    std::map<std::size_t, std::string> lines;
    TextCursor cursor(source);
    for (const std::size_t line : wanted) {
        if (line == 0)
            continue;
        cursor.GoTo(line, 1);
        if (cursor.GetPosition().line != line)
            break;
        const std::size_t begin = cursor.GetIndex();
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        lines.emplace(line, text.substr(begin, end - begin));
    }
    return lines;
}

} // namespace tal
