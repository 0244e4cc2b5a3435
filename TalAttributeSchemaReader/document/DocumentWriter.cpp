// Writing a document: the whole DOM in memory first, then the file.
#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"

#include <memory>
#include <new>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/LocalFileFormatTarget.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "TalAttributeSchemaReader/document/CCAEErrorHandler.h"
#include "TalAttributeSchemaReader/dom/XercesGuards.h"

using namespace xercesc;

bool CTalAttributeModelBuilder::WriteDocument()
try {
    const XercesSession session;
    DOMImplementation* implementation = session.GetLoadAndSave();
    if (!implementation)
        return false;

    try {
        MemoryManager* const memory = XMLPlatformUtils::fgMemoryManager;
        CCAEErrorHandler errorHandler;
        const XercesPtr<DOMDocument> document(implementation->createDocument(
            GuString().c_str(), GuString("Model", 0).c_str(), nullptr, memory));
        WriteModelElements(document->getDocumentElement());

        const XercesPtr<DOMLSSerializer> serializer(implementation->createLSSerializer(memory));
        if (!serializer)
            return false;
        const XercesPtr<DOMLSOutput> output(implementation->createLSOutput(memory));
        output->setEncoding(nullptr);
        serializer->getDomConfig()->setParameter(XMLUni::fgDOMErrorHandler, &errorHandler);

        // Creates or truncates the file, so it comes last; its destructor flushes and closes.
        const std::unique_ptr<LocalFileFormatTarget> target(
            new (memory) LocalFileFormatTarget(m_path.c_str(), memory));
        output->setByteStream(target.get());
        serializer->write(document.get(), output.get());
    } catch (...) {
        // A failed write is silent.
    }
    return true;
} catch (const OutOfMemoryException&) { // which is no std::exception
    throw std::bad_alloc();
}
