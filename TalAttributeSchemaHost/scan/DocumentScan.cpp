#include "TalAttributeSchemaHost/scan/DocumentScan.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLEntityDecl.hpp>
#include <xercesc/parsers/SAX2XMLReaderImpl.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/RefVectorOf.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>

#include "TalAttributeSchemaHost/scan/ExternalFiles.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/dom/ParseMemory.h"
#include "TalAttributeSchemaReader/dom/ParserSettings.h"
#include "TalAttributeSchemaReader/format/NodeName.h"

using namespace xercesc;

namespace tal {

namespace {

bool IsWhiteSpace(XMLCh unit)
{
    return unit == ' ' || unit == '\n' || unit == '\t' || unit == '\r';
}

bool IsXml11(const XMLCh* version)
{
    return NodeName(version) == "1.1";
}

/// A name, or two with a colon between them.
bool IsQualifiedName(XmlView name, bool isXml11)
{
    const auto isName = [&](XmlView text) {
        return isXml11 ? XMLChar1_1::isValidName(text.data(), text.size())
                       : XMLChar1_0::isValidName(text.data(), text.size());
    };
    const std::size_t colon = name.find(XMLCh{':'});
    return colon == XmlView::npos || (name.find(XMLCh{':'}, colon + 1) == XmlView::npos &&
                                      isName(name.substr(0, colon)) && isName(name.substr(colon + 1)));
}

/// Ends a scan in the middle.
struct TooManyUnits
{
};

/// The events from which the library's parser builds its tree, and the count of the markup that they stand
/// for.
class Events : public XMLDocumentHandler
{
public:
    Events(SAX2XMLReader& reader, DocumentVisitor& visitor, std::uint64_t mostUnits)
        : m_reader(reader), m_visitor(visitor), m_mostUnits(mostUnits)
    {
    }

    std::uint64_t GetDelivered() const { return m_delivered; }

    void XMLDecl(const XMLCh* const version, const XMLCh* const, const XMLCh* const,
                 const XMLCh* const) override
    {
        // The parser goes on, but no document of another version can be made of what it delivers.
        if (!(NodeName(version) == "1.0") && !IsXml11(version))
            m_visitor.OnProblem(Problem::Version, version, {AnchorKind::XmlVersion});
    }

    void startElement(const XMLElementDecl& declaration, const unsigned int, const XMLCh* const,
                      const RefVectorOf<XMLAttr>& attributes, const XMLSize_t count, const bool isEmpty,
                      const bool isRoot) override
    {
        CountMarkup();
        const XMLCh* name = declaration.getFullName();
        if (isRoot)
            BeginRoot(name);
        if (!m_rootIsModel) {
            if (isRoot && isEmpty)
                m_visitor.OnEndElement(m_markup);
            return;
        }
        m_attributes.clear();
        for (XMLSize_t i = 0; i < count; ++i) {
            const XMLAttr& attribute = *attributes.elementAt(i);
            m_attributes.push_back({attribute.getQName(), attribute.getValue()});
            CountUnits(m_attributes.back().value.size());
        }
        m_visitor.OnStartElement(name, m_attributes, m_markup);
        if (isEmpty)
            m_visitor.OnEndElement(m_markup);
    }

    void endElement(const XMLElementDecl&, const unsigned int, const bool isRoot, const XMLCh* const) override
    {
        CountMarkup();
        if (m_rootIsModel || isRoot)
            m_visitor.OnEndElement(m_markup);
    }

    void docCharacters(const XMLCh* const text, const XMLSize_t length, const bool) override
    {
        CountUnits(length);
        if (m_rootIsModel && !std::all_of(text, text + length, IsWhiteSpace))
            m_visitor.OnText({m_entities > 0 ? AnchorKind::Reference : AnchorKind::Text, m_markup});
    }

    void startEntityReference(const XMLEntityDecl& declaration) override
    {
        CountMarkup();
        ++m_entities;
        if (m_rootIsModel)
            m_visitor.OnStartEntity(declaration.getName(), m_markup);
    }

    void endEntityReference(const XMLEntityDecl&) override
    {
        --m_entities;
        if (m_rootIsModel)
            m_visitor.OnEndEntity();
    }

    void docComment(const XMLCh* const text) override
    {
        CountMarkup();
        if (m_entities == 0)
            m_visitor.OnComment(text, m_markup);
    }
    void docPI(const XMLCh* const, const XMLCh* const) override { CountMarkup(); }
    void ignorableWhitespace(const XMLCh* const, const XMLSize_t, const bool) override {}
    void startDocument() override {}
    void endDocument() override {}
    void resetDocument() override {}

private:
    void BeginRoot(const XMLCh* name)
    {
        // It was there for the document type, and the parser takes as long to prepare its events as ours.
        m_reader.setContentHandler(nullptr);
        if (NodeName(name) == "Model")
            return;
        m_rootIsModel = false;
        m_visitor.OnProblem(Problem::WrongRoot, name, {AnchorKind::TagName, m_markup});
    }

    /// What comes out of an entity is not markup of the document.
    void CountMarkup() { m_markup += m_entities == 0 ? 1 : 0; }

    void CountUnits(std::uint64_t units)
    {
        m_delivered += units;
        if (m_delivered > m_mostUnits)
            throw TooManyUnits();
    }

    SAX2XMLReader& m_reader;
    DocumentVisitor& m_visitor;
    std::uint64_t m_mostUnits;
    std::size_t m_markup = 0; // so far
    std::size_t m_entities = 0;
    std::uint64_t m_delivered = 0;
    bool m_rootIsModel = true;
    std::vector<XmlAttribute> m_attributes;
};

/// Where a locator or a report stands. The XML library counts in 64 bits on every machine.
template <class Located>
Anchor PlaceOf(AnchorKind kind, const Located& located, std::string file)
{
    return {kind, static_cast<std::size_t>(located.getLineNumber()),
            static_cast<std::size_t>(located.getColumnNumber()), std::move(file)};
}

/// What the parser reports, and what the document type declares.
class Reports : public DefaultHandler
{
public:
    Reports(GuString systemId, DocumentVisitor& visitor) : m_systemId(std::move(systemId)), m_visitor(visitor)
    {
    }

    /// The parser goes on, but its tree cannot hold such a name.
    void BadDocumentType(const XMLCh* name)
    {
        m_visitor.OnProblem(Problem::DocumentTypeName, name, PlaceOf(AnchorKind::Report, *m_locator, {}));
    }

    void setDocumentLocator(const Locator* const locator) override { m_locator = locator; }

    void startDTD(const XMLCh* const, const XMLCh* const, const XMLCh* const systemId) override
    {
        if (systemId && *systemId)
            m_visitor.OnExternalReference({}, systemId, DeclarationOf(systemId));
    }
    void externalEntityDecl(const XMLCh* const name, const XMLCh* const, const XMLCh* const systemId) override
    {
        m_visitor.OnExternalReference(name, systemId, DeclarationOf(systemId));
    }

    void warning(const SAXParseException& report) override { Report(Problem::Warning, report); }
    void error(const SAXParseException& report) override { Report(Problem::Error, report); }
    void fatalError(const SAXParseException& report) override { Report(Problem::FatalError, report); }

private:
    void Report(Problem problem, const SAXParseException& report)
    {
        const bool fatal = problem == Problem::FatalError;
        m_visitor.OnProblem(problem, report.getMessage(),
                            PlaceOf(fatal ? AnchorKind::FatalReport : AnchorKind::Report, report,
                                    FileOf(report.getSystemId())));
    }

    Anchor DeclarationOf(const GuString& systemId) const
    {
        const std::string file = FileOf(m_locator->getSystemId());
        if (!file.empty())
            return PlaceOf(AnchorKind::Report, *m_locator, file);
        return {AnchorKind::SystemLiteral, 0, 0, ToUtf8(systemId)};
    }

    /// Empty for the document itself.
    std::string FileOf(const GuString& systemId) const
    {
        return systemId == m_systemId ? std::string() : ToUtf8(systemId);
    }

    GuString m_systemId;
    DocumentVisitor& m_visitor;
    const Locator* m_locator = nullptr;
};

/// Also looks at the name of a document type; no handler is told about one that has nothing else.
class Parser : public SAX2XMLReaderImpl
{
public:
    Parser(MemoryManager& memory, Reports& reports) : SAX2XMLReaderImpl(&memory), m_reports(reports) {}

    void XMLDecl(const XMLCh* const version, const XMLCh* const encoding, const XMLCh* const standalone,
                 const XMLCh* const actualEncoding) override
    {
        m_isXml11 = IsXml11(version);
        SAX2XMLReaderImpl::XMLDecl(version, encoding, standalone, actualEncoding);
    }
    void doctypeDecl(const DTDElementDecl& declaration, const XMLCh* const publicId,
                     const XMLCh* const systemId, const bool hasInternal, const bool hasExternal) override
    {
        if (!IsQualifiedName(declaration.getFullName(), m_isXml11))
            m_reports.BadDocumentType(declaration.getFullName());
        SAX2XMLReaderImpl::doctypeDecl(declaration, publicId, systemId, hasInternal, hasExternal);
    }

private:
    Reports& m_reports;
    bool m_isXml11 = false;
};

std::uint64_t Scan(const Document& document, ParseMemory& memory, DocumentVisitor& visitor)
{
    const MemBufInputSource source(reinterpret_cast<const XMLByte*>(document.bytes.data()),
                                   document.bytes.size(), FromUtf8(document.path.u8string()).c_str());
    SecurityManager securityManager;
    ExternalFiles externalFiles(document.path, document.allowExternal);
    Reports reports(source.getSystemId(), visitor);
    Parser reader(memory, reports);
    // A tree of more than this does not fit into the memory that it may take.
    Events events(reader, visitor, ParseMemory::MostMemory(document.bytes.size()) / sizeof(XMLCh));
    ApplyParserSettings(reader, securityManager);
    reader.setXMLEntityResolver(&externalFiles);
    reader.setContentHandler(&reports); // for the locator
    reader.setLexicalHandler(&reports);
    reader.setDeclarationHandler(&reports);
    reader.setErrorHandler(&reports);
    reader.installAdvDocHandler(&events);
    reader.parse(source);
    return events.GetDelivered();
}

} // namespace

std::uint64_t ScanDocument(const Document& document, DocumentVisitor& visitor)
{
    ParseMemory memory(document.bytes.size());
    try {
        return Scan(document, memory, visitor);
    } catch (const OutsideFolder& outside) {
        visitor.OnProblem(Problem::OutsideFolder, outside.target,
                          {AnchorKind::SystemLiteral, 0, 0, ToUtf8(outside.target)});
    } catch (const TooManyUnits&) {
        visitor.OnProblem(Problem::Expansion, {}, {});
    } catch (const XMLException& exception) {
        visitor.OnProblem(Problem::FatalError, exception.getMessage(), {});
    } catch (const OutOfMemoryException&) {
        if (!memory.IsExceeded())
            throw std::bad_alloc();
        visitor.OnProblem(Problem::Expansion, {}, {});
    }
    return 0;
}

} // namespace tal
