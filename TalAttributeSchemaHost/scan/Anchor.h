// What a finding hangs on until its place is looked up.
#pragma once

#include <cstddef>
#include <string>

namespace tal {

enum class AnchorKind
{
    Nowhere,
    TagName,
    AttributeName,  // or the tag name, where a document type gives the attribute
    AttributeValue, // likewise; without the quotes
    Text,           // the text behind the markup, without white space around it
    Reference,      // to an entity, "&" and ";" included
    SystemLiteral,  // in the document type
    XmlVersion,     // in the XML declaration
    XmlEncoding,    // likewise
    Byte,
    WholeMarkup,
    Report,     // where the parser stood behind what it reports
    FatalReport // where the parser stood when it gave up
};

/// Something that can be found again in the text of a document. Markup is counted while a document is
/// scanned, which costs nothing; only a document with findings is looked through for their places.
///
/// Tags, comments, processing instructions and references to entities count, in the order in which they stand
/// between the tags of the document itself.
struct Anchor
{
    AnchorKind kind = AnchorKind::Nowhere;
    std::size_t number = 0; // of the markup, from 1; of a report the line, of a byte its offset
    std::size_t column = 0; // of a report, in UTF-16 units
    std::string name = {};  // UTF-8: of the attribute, or the system literal; of a report, the file it is
                            // about when that is not the document
    bool exact = false;     // of an attribute: nowhere, rather than at the tag name, when the tag has it not
};

} // namespace tal
