// How every document is parsed, whichever parser of the XML library does it.
#pragma once

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMErrorHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLUni.hpp>

/// For the parser that builds a DOM. Borrows both objects; they must outlive the parse. The security manager
/// bounds the expansion of entities: a few hundred bytes could otherwise cost seconds and hundreds of
/// megabytes.
inline void ApplyParserSettings(xercesc::DOMConfiguration& configuration,
                                xercesc::DOMErrorHandler& errorHandler,
                                xercesc::SecurityManager& securityManager)
{
    using xercesc::XMLUni;
    configuration.setParameter(XMLUni::fgDOMNamespaces, false);
    configuration.setParameter(XMLUni::fgXercesSchema, false);
    configuration.setParameter(XMLUni::fgXercesSchemaFullChecking, false);
    configuration.setParameter(XMLUni::fgDOMValidateIfSchema, true);
    configuration.setParameter(XMLUni::fgDOMDatatypeNormalization, true);
    configuration.setParameter(XMLUni::fgDOMErrorHandler, &errorHandler);
    configuration.setParameter(XMLUni::fgXercesSecurityManager, &securityManager);
}

/// The same for the parser that sends events: it accepts and reports what the other one does.
inline void ApplyParserSettings(xercesc::SAX2XMLReader& reader, xercesc::SecurityManager& securityManager)
{
    using xercesc::XMLUni;
    reader.setFeature(XMLUni::fgSAX2CoreNameSpaces, false);
    reader.setFeature(XMLUni::fgXercesSchema, false);
    reader.setFeature(XMLUni::fgSAX2CoreValidation, true);
    reader.setFeature(XMLUni::fgXercesDynamic, true);
    reader.setProperty(XMLUni::fgXercesSecurityManager, &securityManager);
}
