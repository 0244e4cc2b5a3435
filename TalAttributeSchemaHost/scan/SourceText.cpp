#include "TalAttributeSchemaHost/scan/SourceText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>

#include <xercesc/framework/XMLRecognizer.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLException.hpp>

#include "TalAttributeSchemaReader/model/genutl/GuChar.h"
#include "TalAttributeSchemaReader/model/genutl/Utf16.h"

using namespace xercesc;

namespace tal {

namespace {

constexpr XMLSize_t kBlock = XMLSize_t{16} * 1024;
constexpr std::size_t kLongestDeclaration = 1024; // in bytes, of what is looked at

const XMLByte* Bytes(std::string_view text)
{
    return reinterpret_cast<const XMLByte*>(text.data());
}

template <class Name>
std::unique_ptr<XMLTranscoder> MakeTranscoder(Name encoding)
{
    XMLTransService::Codes result = XMLTransService::Ok;
    return std::unique_ptr<XMLTranscoder>(XMLPlatformUtils::fgTransService->makeNewTranscoderFor(
        encoding, result, kBlock, XMLPlatformUtils::fgMemoryManager));
}

struct Decoded
{
    std::basic_string<XMLCh> units;
    std::vector<unsigned char> sizes; // in bytes, of each unit
    std::size_t length = 0;           // of the bytes that are valid
};

/// `makeTranscoder` is called again where a block cannot be decoded as a whole.
template <class MakeTranscoder>
Decoded Decode(std::string_view bytes, MakeTranscoder makeTranscoder)
{
    Decoded decoded;
    std::array<XMLCh, kBlock> units{};
    std::array<unsigned char, kBlock> sizes{};
    XMLSize_t most = kBlock;
    std::unique_ptr<XMLTranscoder> transcoder = makeTranscoder();
    while (transcoder && decoded.length < bytes.size()) {
        XMLSize_t eaten = 0;
        XMLSize_t count = 0;
        try {
            count = transcoder->transcodeFrom(Bytes(bytes) + decoded.length, bytes.size() - decoded.length,
                                              units.data(), most, eaten, sizes.data());
        } catch (const XMLException&) {
            if (most < kBlock)
                break;
            most = 2; // room for one character, so that the block is valid up to the byte at fault
            transcoder = makeTranscoder();
            continue;
        }
        if (eaten == 0)
            break;
        decoded.units.append(units.data(), count);
        decoded.sizes.insert(decoded.sizes.end(), sizes.begin(), sizes.begin() + static_cast<long>(count));
        decoded.length += eaten;
    }
    return decoded;
}

/// Whether the next eight bytes are ASCII.
bool AreEightAscii(std::string_view bytes, std::size_t position)
{
    std::uint64_t eight = 0;
    if (bytes.size() - position < sizeof eight)
        return false;
    std::memcpy(&eight, bytes.data() + position, sizeof eight);
    return (eight & 0x8080808080808080) == 0;
}

/// The length of the longest beginning that is UTF-8.
std::size_t ValidUtf8(std::string_view bytes)
{
    std::size_t valid = 0;
    for (std::size_t i = 0; i < bytes.size(); valid = i) {
        const bool ascii = static_cast<unsigned char>(bytes[i]) < 0x80;
        if (AreEightAscii(bytes, i))
            i += 8;
        else if (ascii)
            ++i;
        else if (NextUtf8CodePoint(bytes.data(), bytes.size(), i), i == valid + 1)
            break;
    }
    return valid;
}

/// The value of the pseudo-attribute "encoding", in capital letters.
std::string DeclaredEncoding(const std::string& text)
{
    const std::string declaration =
        text.rfind("<?xml", 0) == 0 ? text.substr(0, text.find("?>")) : std::string();
    const std::size_t name = declaration.find("encoding");
    const std::size_t quote = declaration.find_first_of("\"'", std::min(name, declaration.size()));
    if (quote == std::string::npos)
        return {};
    std::string value =
        declaration.substr(quote + 1, declaration.find(declaration[quote], quote + 1) - quote - 1);
    std::transform(value.begin(), value.end(), value.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    return value;
}

std::string AsciiOf(const std::basic_string<XMLCh>& units)
{
    std::string text;
    for (const XMLCh unit : units)
        text += unit < 0x80 ? static_cast<char>(unit) : '?';
    return text;
}

std::size_t ByteOrderMark(std::string_view bytes, XMLRecognizer::Encodings family)
{
    if (family == XMLRecognizer::UTF_8)
        return bytes.substr(0, 3) == "\xEF\xBB\xBF" ? 3 : 0;
    const bool utf16 = family == XMLRecognizer::UTF_16B || family == XMLRecognizer::UTF_16L;
    return utf16 && (bytes.substr(0, 2) == "\xFF\xFE" || bytes.substr(0, 2) == "\xFE\xFF") ? 2 : 0;
}

} // namespace

SourceText::SourceText(std::string_view bytes)
{
    // The XML library senses the encoding like this, too.
    const XMLRecognizer::Encodings family =
        XMLRecognizer::basicEncodingProbe(Bytes(bytes), static_cast<XMLSize_t>(bytes.size()));
    m_firstByte = ByteOrderMark(bytes, family);
    bytes.remove_prefix(m_firstByte);

    const auto makeForFamily = [&] { return MakeTranscoder(family); };
    const bool wide = family != XMLRecognizer::UTF_8 && family != XMLRecognizer::EBCDIC;
    m_encoding = DeclaredEncoding(AsciiOf(Decode(bytes.substr(0, kLongestDeclaration), makeForFamily).units));
    const bool contradicts = m_encoding.rfind("UTF-16", 0) == 0 || m_encoding.rfind("ISO-10646", 0) == 0;
    if (wide)
        m_encoding =
            family == XMLRecognizer::UTF_16B || family == XMLRecognizer::UTF_16L ? "UTF-16" : "UCS-4";
    else if (m_encoding.empty() || contradicts)
        m_encoding = "UTF-8";

    if (wide)
        m_family = family;
    const auto makeTranscoder = [&] { return wide ? makeForFamily() : MakeTranscoder(m_encoding.c_str()); };
    const bool known = makeTranscoder() != nullptr;
    if (!known)
        m_encoding.clear();
    std::size_t valid = 0;
    if (!known || m_encoding == "UTF-8") {
        valid = ValidUtf8(bytes);
        m_bytes = bytes.substr(0, valid);
    } else {
        const Decoded decoded = Decode(bytes, makeTranscoder);
        valid = decoded.length;
        for (std::size_t i = 0; i < decoded.units.size();) {
            const std::size_t first = i;
            const char32_t codePoint = NextCodePoint(decoded.units.data(), decoded.units.size(), i);
            AppendUtf8(m_decoded, IsXmlCharacter(codePoint) ? codePoint : kReplacementCharacter);
            const int secondHalf = i > first + 1 ? decoded.sizes[first + 1] : 0;
            m_characterSizes.push_back(static_cast<unsigned char>(decoded.sizes[first] + secondHalf));
        }
    }
    if (known && valid < bytes.size())
        m_invalidByte = m_firstByte + valid;
}

std::size_t SourceText::BytesOfCharacter(std::size_t index, std::size_t character) const
{
    return m_decoded.empty() ? Utf8Length(m_bytes[index]) : m_characterSizes[character];
}

std::optional<std::string> SourceText::Encode(std::string_view ascii) const
{
    const std::unique_ptr<XMLTranscoder> transcoder =
        m_family >= 0 ? MakeTranscoder(static_cast<XMLRecognizer::Encodings>(m_family))
                      : MakeTranscoder(m_encoding.c_str());
    constexpr std::size_t kMostBytes = 16; // of one character, with what switches between character sets
    if (!transcoder || ascii.size() > kBlock)
        return std::nullopt;
    const std::basic_string<XMLCh> units(ascii.begin(), ascii.end());
    std::string bytes(ascii.size() * kMostBytes, '\0');
    XMLSize_t eaten = 0;
    try {
        const XMLSize_t count =
            transcoder->transcodeTo(units.data(), units.size(), reinterpret_cast<XMLByte*>(bytes.data()),
                                    bytes.size(), eaten, XMLTranscoder::UnRep_Throw);
        bytes.resize(count);
    } catch (const XMLException&) {
        return std::nullopt;
    }
    return eaten == units.size() ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace tal
