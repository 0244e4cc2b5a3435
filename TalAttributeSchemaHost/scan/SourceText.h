// The text of a document from its bytes, whatever their encoding.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tal {

/// A document's text in UTF-8 with the way back to its bytes. Documents in UTF-8 are not copied: `bytes` must
/// outlive the object. The XML library must be initialised.
class SourceText
{
public:
    explicit SourceText(std::string_view bytes);

    /// Without a byte order mark. Ends in front of the first byte that is not valid.
    std::string_view Utf8() const { return m_decoded.empty() ? m_bytes : m_decoded; }
    /// The number of bytes that hold the character at `index` of the text, the `character`th from 0.
    std::size_t BytesOfCharacter(std::size_t index, std::size_t character) const;
    /// Nothing was converted: every byte of the text is one of the document.
    bool IsUtf8() const { return m_decoded.empty(); }
    /// Where the text begins in the bytes: behind a byte order mark.
    std::size_t FirstByte() const { return m_firstByte; }

    /// By its usual name, in capital letters; empty when the XML library does not know it. The text then is
    /// what it would be in UTF-8.
    const std::string& Encoding() const { return m_encoding; }
    /// ASCII text as it stands in the document's encoding, or nothing when that is not known.
    std::optional<std::string> Encode(std::string_view ascii) const;
    /// The offset of the first byte that means nothing in the encoding.
    std::optional<std::size_t> InvalidByte() const { return m_invalidByte; }

private:
    std::string m_encoding;
    int m_family = -1;                           // of the encoding, where that says it all; otherwise -1
    std::string_view m_bytes;                    // the text, when it is UTF-8 already
    std::string m_decoded;                       // the text otherwise
    std::vector<unsigned char> m_characterSizes; // in bytes, of the characters of `m_decoded`
    std::size_t m_firstByte = 0;
    std::optional<std::size_t> m_invalidByte;
};

/// The number of bytes of the UTF-8 character that begins with `lead`.
constexpr std::size_t Utf8Length(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

} // namespace tal
