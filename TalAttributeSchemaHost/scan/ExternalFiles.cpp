#include "TalAttributeSchemaHost/scan/ExternalFiles.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>

#include "TalAttributeSchemaHost/platform/FileSystem.h"
#include "TalAttributeSchemaHost/scan/FileBytes.h"
#include "TalAttributeSchemaHost/text/Utf8.h"

using namespace xercesc;
namespace fs = std::filesystem;

namespace tal {

namespace {

/// A file in memory; without a stream, about which the parser complains, when the file cannot be read.
class FileInputSource : public InputSource
{
public:
    explicit FileInputSource(const fs::path& file)
        : InputSource(FromUtf8(file.u8string()).c_str()), m_bytes(ReadFile(file, m_error))
    {
    }

    BinInputStream* makeStream() const override
    {
        if (m_error)
            return nullptr;
        return new BinMemInputStream(reinterpret_cast<const XMLByte*>(m_bytes.data()), m_bytes.size(),
                                     BinMemInputStream::BufOpt_Reference);
    }

private:
    std::error_code m_error;
    std::string m_bytes;
};

/// The part in front of "://" or ":", in small letters; empty for a path. One letter is a drive.
std::string SchemeOf(const std::string& target)
{
    const auto isPart = [](unsigned char character) {
        return std::isalnum(character) != 0 || character == '+' || character == '-' || character == '.';
    };
    const auto end = std::find_if_not(target.begin(), target.end(), isPart);
    if (end == target.end() || *end != ':' || end - target.begin() < 2)
        return {};
    std::string scheme(target.begin(), end);
    std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return scheme;
}

/// The path in a "file:" URI of this machine, or an empty one.
fs::path PathOfFileUri(std::string uri)
{
    uri.erase(0, std::string("file:").size());
    for (const std::string host : {"//localhost/", "///"}) {
        if (uri.rfind(host, 0) == 0)
            uri.erase(0, host.size() - 1);
    }
    if (uri.empty() || uri.front() != '/' || uri.rfind("//", 0) == 0)
        return {};
    std::string path;
    for (std::size_t i = 0; i < uri.size(); ++i) {
        const bool escaped = uri[i] == '%' && i + 2 < uri.size() &&
                             std::isxdigit(static_cast<unsigned char>(uri[i + 1])) != 0 &&
                             std::isxdigit(static_cast<unsigned char>(uri[i + 2])) != 0;
        path += escaped ? static_cast<char>(std::stoi(uri.substr(i + 1, 2), nullptr, 16)) : uri[i];
        i += escaped ? 2 : 0;
    }
    // "/C:/schemas/part.xml" where drives have letters
    const fs::path withoutSlash = fs::u8path(path.substr(1));
    return withoutSlash.has_root_name() ? withoutSlash : fs::u8path(path);
}

bool IsIn(const fs::path& folder, const fs::path& file)
{
    return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
}

} // namespace

ExternalFiles::ExternalFiles(const fs::path& document, bool allowAll)
    : m_folder(document.parent_path()), m_allowAll(allowAll)
{
}

InputSource* ExternalFiles::resolveEntity(XMLResourceIdentifier* resource)
{
    if (m_allowAll)
        return nullptr;
    const GuString target = resource->getSystemId();
    const std::string text = ToUtf8(target);
    const std::string scheme = SchemeOf(text);
    fs::path file;
    if (scheme.empty())
        file = fs::u8path(ToUtf8(resource->getBaseURI())).parent_path() / fs::u8path(text);
    else if (scheme == "file")
        file = PathOfFileUri(text);

    std::error_code unknown;
    const fs::path folder = RealPath(m_folder, unknown);
    const fs::path canonical = file.empty() || unknown ? file : RealPath(file, unknown);
    if (canonical.empty() || unknown || !IsIn(folder, canonical))
        throw OutsideFolder{target};
    const fs::file_status status = FileStatus(canonical, unknown);
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw OutsideFolder{target};
    return new FileInputSource(canonical);
}

} // namespace tal
