// Why the library reads nothing from a document.
#include "tools/talschema/Diagnosis.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "TalAttributeSchemaReader/document/XercesGuards.h"
#include "tools/talschema/Messages.h"
#include "tools/talschema/Text.h"

using namespace xercesc;

namespace {

// The outermost elements that become objects of the model.
constexpr const char* kContent[] = {"/Model/Storage", "/Model/AttributeDefinition/Attributes/Attribute",
                                    "/Model/AttributeDefinition/Files/File",
                                    "/Model/AttributeDefinition/AttributeGroups/AttributeGroup",
                                    "/Model/Entities/Entity"};

class DiagnosingHandler : public DefaultHandler
{
public:
    /// Reports about the entity `systemId` name it `shownName`.
    DiagnosingHandler(GuString systemId, GuString shownName)
        : m_systemId(std::move(systemId)), m_shownName(std::move(shownName))
    {
    }

    const Diagnosis& GetDiagnosis() const { return m_diagnosis; }

    void setDocumentLocator(const Locator* const locator) override { m_locator = locator; }

    void startElement(const XMLCh* const, const XMLCh* const, const XMLCh* const name,
                      const Attributes&) override
    {
        if (m_entityDepth > 0)
            return;
        if (m_path.empty() && GuString(name) != "Model") {
            const std::string text = "the root element is \"" + ToUtf8(name) + "\", not \"Model\"";
            m_diagnosis.reports += ErrorMessage(m_shownName, text.c_str(), m_locator->getLineNumber(),
                                                m_locator->getColumnNumber());
        }
        m_path += "/" + ToUtf8(name);
        if (std::find(std::begin(kContent), std::end(kContent), m_path) != std::end(kContent))
            m_diagnosis.hasContent = true;
    }

    void endElement(const XMLCh* const, const XMLCh* const, const XMLCh* const) override
    {
        if (m_entityDepth == 0)
            m_path.erase(m_path.rfind('/'));
    }

    // The library does not look into references to entities.
    void startEntity(const XMLCh* const) override { ++m_entityDepth; }
    void endEntity(const XMLCh* const) override { --m_entityDepth; }

    void warning(const SAXParseException& report) override { Report(report); }
    void error(const SAXParseException& report) override { Report(report); }
    void fatalError(const SAXParseException& report) override { Report(report); }

private:
    void Report(const SAXParseException& report)
    {
        const GuString systemId(report.getSystemId());
        const bool own = systemId.IsEmpty() || systemId == m_systemId;
        m_diagnosis.reports += ErrorMessage(own ? m_shownName : systemId, report.getMessage(),
                                            report.getLineNumber(), report.getColumnNumber());
    }

    GuString m_systemId;
    GuString m_shownName;
    const Locator* m_locator = nullptr;
    std::string m_path; // of the current element
    int m_entityDepth = 0;
    Diagnosis m_diagnosis;
};

} // namespace

Diagnosis Diagnose(const GuString& path, const GuString& shownName)
{
    const XercesSession session;
    if (!session.IsOpen())
        return {ErrorMessage(shownName, "the XML library cannot be initialised")};
    try {
        const LocalFileInputSource source(path.c_str());
        DiagnosingHandler handler(source.getSystemId(), shownName);
        SecurityManager securityManager;
        const std::unique_ptr<SAX2XMLReader> parser(XMLReaderFactory::createXMLReader());
        parser->setFeature(XMLUni::fgSAX2CoreNameSpaces, false);
        parser->setFeature(XMLUni::fgXercesSchema, false);
        parser->setFeature(XMLUni::fgSAX2CoreValidation, true);
        parser->setFeature(XMLUni::fgXercesDynamic, true);
        parser->setProperty(XMLUni::fgXercesSecurityManager, &securityManager);
        parser->setContentHandler(&handler);
        parser->setLexicalHandler(&handler);
        parser->setErrorHandler(&handler);
        parser->parse(source);
        return handler.GetDiagnosis();
    } catch (const XMLException& exception) {
        return {ErrorMessage(shownName, exception.getMessage())};
    }
}
