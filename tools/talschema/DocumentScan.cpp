// One pass over a document, parsed exactly as the library parses it.
#include "tools/talschema/DocumentScan.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include <xercesc/framework/LocalFileInputSource.hpp>
#include <xercesc/framework/StdInInputSource.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLEntityDecl.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/RefVectorOf.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "TalAttributeSchemaReader/document/ReadingConventions.h"
#include "TalAttributeSchemaReader/document/XercesGuards.h"
#include "tools/talschema/Text.h"

using namespace xercesc;

namespace {

bool IsWhiteSpace(XMLCh unit)
{
    return unit == ' ' || unit == '\n' || unit == '\t' || unit == '\r';
}

/// Where the parser stands, and what it reports.
class Reports : public DefaultHandler
{
public:
    Reports(GuString systemId, DocumentVisitor& visitor) : m_systemId(std::move(systemId)), m_visitor(visitor)
    {
    }

    Place Here() const { return {{}, m_locator->getLineNumber(), m_locator->getColumnNumber()}; }

    void setDocumentLocator(const Locator* const locator) override { m_locator = locator; }

    void startDTD(const XMLCh* const, const XMLCh* const, const XMLCh* const systemId) override
    {
        if (systemId && *systemId)
            m_visitor.OnExternalReference("the document type", systemId, HereInAnyFile());
    }
    void externalEntityDecl(const XMLCh* const name, const XMLCh* const, const XMLCh* const systemId) override
    {
        m_visitor.OnExternalReference("the entity \"" + Printable(name) + "\"", systemId, HereInAnyFile());
    }

    void warning(const SAXParseException& report) override { Report(Problem::Warning, report); }
    void error(const SAXParseException& report) override { Report(Problem::Error, report); }
    void fatalError(const SAXParseException& report) override { Report(Problem::FatalError, report); }

private:
    void Report(Problem problem, const SAXParseException& report)
    {
        m_visitor.OnProblem(problem, report.getMessage(),
                            {FileOf(report.getSystemId()), report.getLineNumber(), report.getColumnNumber()});
    }

    Place HereInAnyFile() const
    {
        Place place = Here();
        place.file = FileOf(m_locator->getSystemId());
        return place;
    }

    std::string FileOf(const GuString& systemId) const
    {
        return systemId == m_systemId ? std::string() : ToUtf8(systemId);
    }

    GuString m_systemId;
    DocumentVisitor& m_visitor;
    const Locator* m_locator = nullptr;
};

/// The events from which the library's parser builds its tree. Each begins where the one before it ended.
class Events : public XMLDocumentHandler
{
public:
    Events(const Reports& reports, DocumentVisitor& visitor) : m_reports(reports), m_visitor(visitor) {}

    void startElement(const XMLElementDecl& declaration, const unsigned int, const XMLCh* const,
                      const RefVectorOf<XMLAttr>& attributes, const XMLSize_t count, const bool isEmpty,
                      const bool isRoot) override
    {
        // White space in front of the root is no event, so the root counts where its start tag ends.
        const Place place = isRoot ? m_reports.Here() : m_end;
        Advance();
        const XMLCh* name = declaration.getFullName();
        if (isRoot && !(NodeName(name) == "Model")) {
            m_rootIsModel = false;
            m_visitor.OnProblem(Problem::WrongRoot,
                                ("the root element is \"" + ToUtf8(name) + "\", not \"Model\"").c_str(),
                                place);
        }
        if (!m_rootIsModel)
            return;
        m_attributes.clear();
        for (XMLSize_t i = 0; i < count; ++i)
            m_attributes.push_back(
                {attributes.elementAt(i)->getQName(), attributes.elementAt(i)->getValue()});
        m_visitor.OnStartElement(name, m_attributes, place);
        if (isEmpty)
            m_visitor.OnEndElement();
    }

    void endElement(const XMLElementDecl&, const unsigned int, const bool, const XMLCh* const) override
    {
        Advance();
        if (m_rootIsModel)
            m_visitor.OnEndElement();
    }

    void docCharacters(const XMLCh* const text, const XMLSize_t length, const bool) override
    {
        const Place place = Advance();
        if (m_rootIsModel && !std::all_of(text, text + length, IsWhiteSpace))
            m_visitor.OnText(place);
    }

    void startEntityReference(const XMLEntityDecl& declaration) override
    {
        const Place place = Advance();
        if (m_rootIsModel)
            m_visitor.OnStartEntity(declaration.getName(), place);
    }

    void endEntityReference(const XMLEntityDecl&) override
    {
        Advance();
        if (m_rootIsModel)
            m_visitor.OnEndEntity();
    }

    void docComment(const XMLCh* const) override { Advance(); }
    void docPI(const XMLCh* const, const XMLCh* const) override { Advance(); }
    void ignorableWhitespace(const XMLCh* const, const XMLSize_t, const bool) override { Advance(); }
    void XMLDecl(const XMLCh* const, const XMLCh* const, const XMLCh* const, const XMLCh* const) override
    {
        Advance();
    }
    void startDocument() override {}
    void endDocument() override {}
    void resetDocument() override {}

private:
    /// Where the current event begins.
    Place Advance() { return std::exchange(m_end, m_reports.Here()); }

    const Reports& m_reports;
    DocumentVisitor& m_visitor;
    Place m_end{{}, 1, 1};
    bool m_rootIsModel = true;
    std::vector<XmlAttribute> m_attributes;
};

void Scan(const InputSource& source, DocumentVisitor& visitor)
{
    SecurityManager securityManager;
    Reports reports(source.getSystemId(), visitor);
    Events events(reports, visitor);
    const std::unique_ptr<SAX2XMLReader> reader(XMLReaderFactory::createXMLReader());
    reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, false);
    reader->setFeature(XMLUni::fgXercesSchema, false);
    reader->setFeature(XMLUni::fgSAX2CoreValidation, true);
    reader->setFeature(XMLUni::fgXercesDynamic, true);
    reader->setProperty(XMLUni::fgXercesSecurityManager, &securityManager);
    reader->setContentHandler(&reports); // for the locator
    reader->setLexicalHandler(&reports);
    reader->setDeclarationHandler(&reports);
    reader->setErrorHandler(&reports);
    reader->installAdvDocHandler(&events);
    reader->parse(source);
}

/// `makeSource` is called once the XML library is there.
template <class MakeSource>
void ScanSource(DocumentVisitor& visitor, MakeSource makeSource)
{
    const XercesSession session;
    if (!session.IsOpen()) {
        visitor.OnProblem(Problem::FatalError, "the XML library cannot be initialised", {});
        return;
    }
    try {
        Scan(makeSource(), visitor);
    } catch (const XMLException& exception) {
        visitor.OnProblem(Problem::FatalError, exception.getMessage(), {});
    } catch (const OutOfMemoryException&) {
        throw std::bad_alloc();
    }
}

} // namespace

void ScanFile(const GuString& path, DocumentVisitor& visitor)
{
    ScanSource(visitor, [&] { return LocalFileInputSource(path.c_str()); });
}

void ScanStandardInput(DocumentVisitor& visitor)
{
    ScanSource(visitor, [] { return StdInInputSource(); });
}
