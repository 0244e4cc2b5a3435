// Reading a document: one guarded parse, then a walk over the sections below the root.
#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"

#include <cstdint>
#include <filesystem>
#include <new>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSParser.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

#include "TalAttributeSchemaReader/document/CCAEErrorHandler.h"
#include "TalAttributeSchemaReader/dom/DepthFilter.h"
#include "TalAttributeSchemaReader/dom/ParseMemory.h"
#include "TalAttributeSchemaReader/dom/ParserSettings.h"
#include "TalAttributeSchemaReader/dom/XercesGuards.h"

using namespace xercesc;

namespace {

// Of what is no file, such as a URI, nobody knows the size before it is read.
constexpr std::uint64_t kUnknownSize = std::uint64_t{8} * 1024 * 1024;

std::uint64_t SizeOf(const GuString& path)
{
    try {
        return std::filesystem::file_size(path.c_str());
    } catch (const std::filesystem::filesystem_error&) {
        return kUnknownSize;
    }
}

} // namespace

bool CTalAttributeModelBuilder::ReadDocument()
try {
    const XercesSession session;
    DOMImplementation* implementation = session.GetLoadAndSave();
    if (!implementation)
        return false;

    CCAEErrorHandler errorHandler;
    SecurityManager securityManager;
    DepthFilter depthFilter;
    ParseMemory memory(SizeOf(m_path));
    const XercesPtr<DOMLSParser> parser(
        implementation->createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr, &memory, nullptr));
    ApplyParserSettings(*parser->getDomConfig(), errorHandler, securityManager);
    parser->setFilter(&depthFilter);

    const GuString path = m_path;
    errorHandler.ClearFailure();
    DOMDocument* document = nullptr; // the parser's
    bool thrown = false;
    try {
        document = parser->parseURI(path.c_str());
    } catch (...) {
        thrown = true;
    }

    if (errorHandler.HasFailed())
        return false;
    if (document)
        TraverseModelElements(document->getDocumentElement());
    return !thrown;
} catch (const OutOfMemoryException&) { // which is no std::exception
    throw std::bad_alloc();
}
