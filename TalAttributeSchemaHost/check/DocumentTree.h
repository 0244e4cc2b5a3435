// Whether the library can make its tree of a document.
#pragma once

#include <xercesc/dom/DOMLSParser.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/scan/ExternalFiles.h"
#include "TalAttributeSchemaReader/document/CCAEErrorHandler.h"
#include "TalAttributeSchemaReader/dom/DepthFilter.h"
#include "TalAttributeSchemaReader/dom/ParseMemory.h"
#include "TalAttributeSchemaReader/dom/XercesGuards.h"

namespace tal {

/// Parses a document as the exported function does, for what cannot be told from what the parser delivers.
class DocumentTree
{
public:
    /// The document and the session must outlive the object. Throws `std::bad_alloc` when memory runs out.
    DocumentTree(const XercesSession& session, const Document& document);

    /// True when the parse ended at a bound of its memory.
    bool IsExceeded() const { return m_memory.IsExceeded(); }

private:
    void Parse(const Document& document);

    CCAEErrorHandler m_errorHandler;
    xercesc::SecurityManager m_securityManager;
    ExternalFiles m_externalFiles;
    DepthFilter m_depthFilter;
    ParseMemory m_memory;
    XercesPtr<xercesc::DOMLSParser> m_parser;
};

} // namespace tal
