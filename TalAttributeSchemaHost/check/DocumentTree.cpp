#include "TalAttributeSchemaHost/check/DocumentTree.h"

#include <new>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/dom/ParserSettings.h"

using namespace xercesc;

namespace tal {

DocumentTree::DocumentTree(const XercesSession& session, const Document& document)
    : m_externalFiles(document.path, document.allowExternal), m_memory(document.bytes.size())
{
    DOMImplementation* const implementation = session.GetLoadAndSave();
    if (!implementation)
        return;
    try {
        m_parser.reset(implementation->createLSParser(DOMImplementationLS::MODE_SYNCHRONOUS, nullptr,
                                                      &m_memory, nullptr));
        Parse(document);
    } catch (const OutsideFolder&) {
    } catch (const XMLException&) {
    } catch (const DOMException&) {
    } catch (const OutOfMemoryException&) {
        if (!IsExceeded())
            throw std::bad_alloc();
    }
}

void DocumentTree::Parse(const Document& document)
{
    MemBufInputSource source(reinterpret_cast<const XMLByte*>(document.bytes.data()), document.bytes.size(),
                             FromUtf8(document.path.u8string()).c_str());
    const Wrapper4InputSource input(&source, false);
    ApplyParserSettings(*m_parser->getDomConfig(), m_errorHandler, m_securityManager);
    m_parser->getDomConfig()->setParameter(XMLUni::fgXercesEntityResolver,
                                           static_cast<XMLEntityResolver*>(&m_externalFiles));
    m_parser->setFilter(&m_depthFilter);
    m_parser->parse(&input);
}

} // namespace tal
