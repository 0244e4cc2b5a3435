// One pass over a document, parsed exactly as the library parses it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <xercesc/util/XercesDefs.hpp>

#include "TalAttributeSchemaHost/scan/Anchor.h"
#include "TalAttributeSchemaReader/model/genutl/GuString.h"

namespace tal {

/// Text of the XML library, in UTF-16 units.
using XmlView = std::basic_string_view<XMLCh>;

/// As in the document, or as its document type gives it by default.
struct XmlAttribute
{
    const XMLCh* name;
    XmlView value; // a null follows
};

/// What keeps the library from reading a document.
enum class Problem
{
    Warning,
    Error,
    FatalError,    // nothing follows
    OutsideFolder, // nothing follows: the document needs a file that is not to be read
    Expansion,     // nothing follows: the document costs more than it may
    Version,
    DocumentTypeName,
    WrongRoot // no element follows
};

/// Receives what the library's parser delivers, in document order. Text is the parser's and goes when the
/// call returns.
class DocumentVisitor
{
public:
    virtual ~DocumentVisitor() = default;

    /// `text` is what the parser says, or the name or value that is at fault.
    virtual void OnProblem(Problem problem, const GuString& text, const Anchor& anchor) = 0;
    /// `entity` is empty for the document type itself; the name of a parameter entity begins with "%".
    virtual void OnExternalReference(const GuString& /*entity*/, const GuString& /*target*/,
                                     const Anchor& /*anchor*/)
    {
    }
    /// `markup` is the number of the tag, or of the reference to the entity that it comes out of.
    virtual void OnStartElement(const XMLCh* /*name*/, const std::vector<XmlAttribute>& /*attributes*/,
                                std::size_t /*markup*/)
    {
    }
    /// `markup` is that of the end tag, or of the only tag. Of a root that is not read, this is all that
    /// comes.
    virtual void OnEndElement(std::size_t /*markup*/) {}
    /// A piece of text with more than white space in it.
    virtual void OnText(const Anchor& /*anchor*/) {}
    /// What follows, up to the end, comes out of an entity that is referred to between elements.
    virtual void OnStartEntity(const XMLCh* /*name*/, std::size_t /*markup*/) {}
    virtual void OnEndEntity() {}
    /// A comment of the document itself.
    virtual void OnComment(const XMLCh* /*text*/, std::size_t /*markup*/) {}
};

/// A document in memory, and where it is from.
struct Document
{
    std::string_view bytes;
    /// Absolute; what the document refers to is looked for from here, and messages that come from elsewhere
    /// are told apart by it. The file need not exist.
    std::filesystem::path path;
    /// What the document brings in from outside is read wherever it is, the network included. Otherwise only
    /// regular files in or below the document's own folder are read.
    bool allowExternal = false;
};

/// The XML library must be initialised. Throws `std::bad_alloc` when memory runs out. Returns the UTF-16
/// units of text and values that the parser delivered: many more than the document has bytes when it expands
/// entities.
std::uint64_t ScanDocument(const Document& document, DocumentVisitor& visitor);

} // namespace tal
