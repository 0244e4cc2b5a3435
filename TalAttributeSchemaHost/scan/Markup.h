// A document's markup, found in its text without a parser.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace tal {

/// From the index of the first byte in a text to behind the last one.
struct Span
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

enum class MarkupKind
{
    Tag,
    Comment,
    Instruction,
    Reference,    // to an entity other than those that XML predefines
    DocumentType, // with everything in it
    XmlDeclaration
};

struct Markup : Span
{
    MarkupKind kind = MarkupKind::Tag;
};

/// Goes from markup to markup through UTF-8 text that a parser has found well-formed so far; behind that it
/// ends somewhere, but never outside of the text.
class MarkupReader
{
public:
    /// From `position` on, which must not be inside of markup.
    explicit MarkupReader(std::string_view text, std::size_t position = 0)
        : m_text(text), m_position(position)
    {
    }

    /// Nothing at the end of the text.
    std::optional<Markup> Next();

private:
    std::string_view m_text;
    std::size_t m_position;
};

/// The name in a tag, also when its beginning is not a tag's.
Span TagName(std::string_view text, Span tag);

struct AttributeSpans
{
    Span name;
    Span value; // without the quotes
};

/// The attributes of a tag, to be looked up by their names.
class TagAttributes
{
public:
    TagAttributes(std::string_view text, Span tag);

    /// Null when there is none of that name.
    const AttributeSpans* Find(std::string_view name) const;

private:
    std::string_view NameOf(const AttributeSpans& attribute) const
    {
        return m_text.substr(attribute.name.begin, attribute.name.end - attribute.name.begin);
    }

    std::string_view m_text;
    std::vector<AttributeSpans> m_attributes; // sorted by name
};

/// The characters between two markups without the white space around them, however it is written.
Span TrimmedText(std::string_view text, Span between);

/// The literals in a document type by their content, without the quotes; of equal ones the first.
std::map<std::string_view, Span> Literals(std::string_view text, Span documentType);

/// Around a place where the parser stopped to report something: the name, value, reference or tag that ends
/// there, or what begins there when it gave up.
Span ReportedSpan(std::string_view text, std::size_t place, bool gaveUp);

} // namespace tal
