#include "TalAttributeSchemaHost/file/ReadAgain.h"

#include <memory>

#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/BinInputStream.hpp>

#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/dom/ParseMemory.h"
#include "TalAttributeSchemaReader/dom/ParserSettings.h"

using namespace xercesc;

namespace tal {

namespace {

class NewFileStream : public BinInputStream
{
public:
    explicit NewFileStream(const ReplacementFile& file) : m_file(file) {}

    XMLFilePos curPos() const override { return m_position; }
    XMLSize_t readBytes(XMLByte* const bytes, const XMLSize_t most) override
    {
        const std::size_t count = m_file.Read(m_position, bytes, most);
        m_position += count;
        return count;
    }
    const XMLCh* getContentType() const override { return nullptr; }

private:
    const ReplacementFile& m_file;
    XMLFilePos m_position = 0;
};

class NewFile : public InputSource
{
public:
    explicit NewFile(const ReplacementFile& file) : m_file(file) {}

    BinInputStream* makeStream() const override { return new (getMemoryManager()) NewFileStream(m_file); }

private:
    const ReplacementFile& m_file;
};

/// Keeps the first report. A warning keeps nobody from reading.
class FirstReport : public ErrorHandler
{
public:
    void warning(const SAXParseException&) override {}
    void error(const SAXParseException& report) override { Keep(report); }
    void fatalError(const SAXParseException& report) override { Keep(report); }
    void resetErrors() override {}

    const std::string& Get() const { return m_text; }

private:
    void Keep(const SAXParseException& report)
    {
        if (m_text.empty())
            m_text = ToUtf8(report.getMessage());
    }

    std::string m_text;
};

} // namespace

std::string ReadAgain(const ReplacementFile& file)
{
    SecurityManager securityManager;
    FirstReport report;
    ParseMemory memory(file.GetSize()); // also takes back what the parser leaves behind where memory runs out
    const std::unique_ptr<SAX2XMLReader> reader(XMLReaderFactory::createXMLReader(&memory));
    // The parser that knows no document type.
    reader->setProperty(XMLUni::fgXercesScannerName, const_cast<XMLCh*>(XMLUni::fgWFXMLScanner));
    ApplyParserSettings(*reader, securityManager);
    reader->setErrorHandler(&report);
    try {
        reader->parse(NewFile(file));
    } catch (const XMLException& exception) {
        return ToUtf8(exception.getMessage());
    }
    return report.Get();
}

} // namespace tal
