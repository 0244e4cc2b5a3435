#include "TalAttributeSchemaHost/file/Save.h"

#include <cstring>
#include <memory>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

#include "TalAttributeSchemaHost/compact/CompactDocument.h"
#include "TalAttributeSchemaHost/file/ReadAgain.h"
#include "TalAttributeSchemaHost/file/ReplacementFile.h"
#include "TalAttributeSchemaHost/platform/FileSystem.h"
#include "TalAttributeSchemaHost/scan/FileBytes.h"
#include "TalAttributeSchemaHost/scan/HostSession.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/document/CCAEErrorHandler.h"
#include "TalAttributeSchemaReader/document/CTalAttributeModelBuilder.h"

using namespace xercesc;

namespace tal {

namespace {

/// Hands what the serializer writes, which is a few bytes at a time, to a file in larger pieces. The
/// serializer swallows exceptions, so the first failure is kept.
class FileTarget : public XMLFormatTarget
{
public:
    explicit FileTarget(ReplacementFile& file) : m_file(file) {}

    void writeChars(const XMLByte* const bytes, const XMLSize_t count, XMLFormatter* const) override
    {
        if (count > kPiece - m_used)
            flush();
        if (count > kPiece)
            return Write(bytes, count);
        if (count == 1) // as more often than not
            m_buffer[m_used] = *bytes;
        else
            std::memcpy(m_buffer.get() + m_used, bytes, count);
        m_used += count;
    }

    void flush() override { Write(m_buffer.get(), std::exchange(m_used, 0)); }

    const std::error_code& GetFailure() const { return m_failure; }

private:
    static constexpr std::size_t kPiece = std::size_t{64} * 1024;

    void Write(const XMLByte* bytes, std::size_t count)
    {
        try {
            if (!m_failure)
                m_file.Write(bytes, count);
        } catch (const std::system_error& failure) {
            m_failure = failure.code();
        }
    }

    ReplacementFile& m_file;
    std::unique_ptr<XMLByte[]> m_buffer{new XMLByte[kPiece]};
    std::size_t m_used = 0;
    std::error_code m_failure;
};

/// Serializes the schema as the exported function does. Returns what went wrong, or nothing.
std::string Write(const XercesSession& session, CDASchema& schema, ReplacementFile& file)
{
    DOMImplementation* const implementation = session.GetLoadAndSave();
    if (!implementation)
        return "the XML library has no serializer";
    MemoryManager* const memory = XMLPlatformUtils::fgMemoryManager;
    CCAEErrorHandler errorHandler;
    CompactDocument document;
    document.SetRoot(document.MakeElement(GuString("Model").c_str()));
    CTalAttributeModelBuilder({}, &schema, nullptr).WriteModelElements(document.getDocumentElement());

    const XercesPtr<DOMLSSerializer> serializer(implementation->createLSSerializer(memory));
    const XercesPtr<DOMLSOutput> output(implementation->createLSOutput(memory));
    serializer->getDomConfig()->setParameter(XMLUni::fgDOMErrorHandler, &errorHandler);
    serializer->getDomConfig()->setParameter(XMLUni::fgDOMEntities, false); // there are none
    FileTarget target(file);
    output->setByteStream(&target);
    const bool written = serializer->write(&document, output.get());
    target.flush();
    if (target.GetFailure())
        throw std::system_error(target.GetFailure());
    return written && !errorHandler.HasFailed() ? "" : "the XML library could not write the document";
}

void RefuseSpecialFile(const std::filesystem::path& file)
{
    std::error_code unknown; // whoever creates the new file says what is wrong with its place
    const std::filesystem::file_status status = FileStatus(file, unknown);
    if (std::filesystem::is_directory(status))
        throw std::system_error(std::make_error_code(std::errc::is_a_directory));
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw std::system_error(std::make_error_code(std::errc::not_supported));
}

/// `fill` writes the new file and returns what went wrong, or nothing.
template <class Fill>
void Replace(const std::filesystem::path& path, const SaveOptions& options, SaveResult& result, Fill fill)
{
    RefuseSpecialFile(path);
    ReplacementFile file(path);
    result.readOnly = !options.force && file.ReplacesReadOnlyFile();
    if (result.readOnly)
        result.error = "the file is read-only";
    if (result.error.empty())
        result.error = fill(file);
    if (result.error.empty() && options.onlyIf && !options.onlyIf())
        result.error = "the file has changed meanwhile";
    if (result.error.empty())
        result.note = file.Commit(options.flush);
}

/// What happened, from the exception that is being handled.
std::string Reason()
{
    try {
        throw;
    } catch (const std::system_error& failure) {
        return FailureText(failure.code());
    } catch (const std::runtime_error& failure) {
        return failure.what();
    } catch (const OutOfMemoryException&) {
        return "not enough memory";
    } catch (const std::bad_alloc&) {
        return "not enough memory";
    } catch (const XMLException& exception) {
        return ToUtf8(exception.getMessage());
    } catch (const DOMException& exception) {
        return ToUtf8(exception.getMessage());
    }
}

template <class Save>
SaveResult Reported(Save save)
{
    SaveResult result;
    try {
        save(result);
    } catch (...) {
        result.error = Reason();
    }
    result.saved = result.error.empty();
    return result;
}

} // namespace

SaveResult SaveSchema(const std::filesystem::path& file, CDASchema& schema, const SaveOptions& options)
{
    return Reported([&](SaveResult& result) {
        const HostSession session;
        if (!session.IsOpen()) {
            result.error = "the XML library cannot be initialised";
            return;
        }
        Replace(file, options, result, [&](ReplacementFile& replacement) {
            std::string error = Write(session.Get(), schema, replacement);
            if (!error.empty() || !options.readAgain)
                return error;
            error = ReadAgain(replacement);
            return error.empty() ? error : "the new document cannot be read: " + error;
        });
    });
}

SaveResult SaveBytes(const std::filesystem::path& file, std::string_view bytes, const SaveOptions& options)
{
    return Reported([&](SaveResult& result) {
        Replace(file, options, result, [&](ReplacementFile& replacement) {
            replacement.Write(bytes.data(), bytes.size());
            return std::string();
        });
    });
}

} // namespace tal
