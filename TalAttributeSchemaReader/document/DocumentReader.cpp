// Reading a document: one guarded parse, then a walk over the sections below the root.
#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"

#include <utility>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSParser.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "TalAttributeSchemaReader/builders/CTalAttributeStorageBuilder.h"
#include "TalAttributeSchemaReader/builders/attributes/CTalAttributeDefinationBuilder.h"
#include "TalAttributeSchemaReader/builders/entities/CTalAttributeEntitiesBuilder.h"
#include "TalAttributeSchemaReader/document/CCAEErrorHandler.h"
#include "TalAttributeSchemaReader/document/DepthFilter.h"
#include "TalAttributeSchemaReader/document/ReadingConventions.h"
#include "TalAttributeSchemaReader/document/XercesGuards.h"
#include "TalAttributeSchemaReader/model/CMemoryAllocator.h"

using namespace xercesc;

namespace {

void Configure(DOMConfiguration* configuration, CCAEErrorHandler* errorHandler,
               SecurityManager* securityManager)
{
    configuration->setParameter(XMLUni::fgDOMNamespaces, false);
    configuration->setParameter(XMLUni::fgXercesSchema, false);
    configuration->setParameter(XMLUni::fgXercesSchemaFullChecking, false);
    configuration->setParameter(XMLUni::fgDOMValidateIfSchema, true);
    configuration->setParameter(XMLUni::fgDOMDatatypeNormalization, true);
    configuration->setParameter(XMLUni::fgDOMErrorHandler, errorHandler);
    // Bounds the expansion of entities: a few hundred bytes could otherwise cost seconds and hundreds of
    // megabytes.
    configuration->setParameter(XMLUni::fgXercesSecurityManager, securityManager);
}

} // namespace

CTalAttributeModelBuilder::CTalAttributeModelBuilder(GuString path, void*)
    : m_schema(nullptr), m_path(std::move(path))
{
    m_schema = new CDASchema;
}

CTalAttributeModelBuilder::~CTalAttributeModelBuilder() = default;

bool CTalAttributeModelBuilder::ReadDocument()
{
    const XercesSession session;
    DOMImplementation* implementation = session.GetLoadAndSave();
    if (!implementation)
        return false;

    CCAEErrorHandler errorHandler;
    SecurityManager securityManager;
    DepthFilter depthFilter;
    const XercesPtr<DOMLSParser> parser(implementation->createLSParser(
        DOMImplementationLS::MODE_SYNCHRONOUS, nullptr, XMLPlatformUtils::fgMemoryManager, nullptr));
    Configure(parser->getDomConfig(), &errorHandler, &securityManager);
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
}

void CTalAttributeModelBuilder::TraverseModelElements(DOMNode* root)
{
    if (!IsElementNamed(root, "Model"))
        return;
    ForEachChildElement(root, [&](NodeName name, DOMNode* section) {
        if (name == "Storage")
            CTalAttributeStorageBuilder(m_path, CMemoryAllocator::GetStorageObject(m_schema), section)
                .Construct();
        else if (name == "AttributeDefinition")
            CTalAttributeDefinationBuilder(m_path, section, m_schema).Construct();
        else if (name == "Entities")
            CTalAttributeEntitiesBuilder(m_path, m_schema, section).Construct();
    });
}
