// One pass over a document, parsed exactly as the library parses it, with positions.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <xercesc/util/XercesDefs.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// Where something begins. `file` is empty for the document itself; otherwise it names another file that the
/// document brought in.
struct Place
{
    std::string file;
    std::uint64_t line = 0;
    std::uint64_t column = 0;
};

/// As in the document, or as its document type gives it by default.
struct XmlAttribute
{
    const XMLCh* name;
    const XMLCh* value;
};

/// What keeps the library from reading a document.
enum class Problem
{
    Warning,
    Error,
    FatalError, // nothing follows
    WrongRoot   // no element follows
};

/// Receives what the library's parser delivers, in document order.
class DocumentVisitor
{
public:
    virtual ~DocumentVisitor() = default;

    virtual void OnProblem(Problem problem, const GuString& text, const Place& place) = 0;
    /// `subject` is "the document type" or names an entity.
    virtual void OnExternalReference(const std::string& /*subject*/, const GuString& /*target*/,
                                     const Place& /*place*/)
    {
    }
    virtual void OnStartElement(const XMLCh* /*name*/, const std::vector<XmlAttribute>& /*attributes*/,
                                const Place& /*place*/)
    {
    }
    virtual void OnEndElement() {}
    /// A piece of text with more than white space in it.
    virtual void OnText(const Place& /*place*/) {}
    /// What follows, up to the end, comes out of an entity that is referred to between elements.
    virtual void OnStartEntity(const XMLCh* /*name*/, const Place& /*place*/) {}
    virtual void OnEndEntity() {}
};

/// Scans the file at the absolute path `path`.
void ScanFile(const GuString& path, DocumentVisitor& visitor);
void ScanStandardInput(DocumentVisitor& visitor);
