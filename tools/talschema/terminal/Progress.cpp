#include "tools/talschema/terminal/Progress.h"

#include <filesystem>
#include <iostream>
#include <system_error>

#include "tools/talschema/terminal/Console.h"
#include "tools/talschema/terminal/Text.h"

namespace {

// A line that wraps could not be written over.
constexpr std::size_t kLongestName = 50;

std::string Shortened(const std::string& name)
{
    const std::string shown = Printable(name);
    std::size_t begin = shown.size() > kLongestName ? shown.size() - kLongestName : 0;
    while (begin < shown.size() && (static_cast<unsigned char>(shown[begin]) & 0xC0U) == 0x80)
        ++begin;
    return begin == 0 ? shown : "..." + shown.substr(begin);
}

} // namespace

Progress::Progress(std::size_t documents) : m_onTerminal(ErrorsGoToTerminal()), m_documents(documents) {}

void Progress::Next(const std::string& name, std::uintmax_t size)
{
    ++m_number;
    const bool large = size >= kLargeDocument;
    if (!m_onTerminal || (!large && m_documents < kManyDocuments))
        return;
    Clear();
    std::cerr << "reading " << Shortened(name);
    if (large)
        std::cerr << " (" << size / 1'000'000 << " MB)";
    if (m_documents > 1)
        std::cerr << ", " << m_number << " of " << m_documents;
    std::cerr << " ..." << std::flush;
    m_shown = true;
}

void Progress::Clear()
{
    if (m_shown)
        std::cerr << "\r\033[K" << std::flush;
    m_shown = false;
}

std::uintmax_t SizeOfDocument(const std::string& name)
{
    std::error_code noFile;
    const std::uintmax_t size = std::filesystem::file_size(std::filesystem::u8path(name), noFile);
    return noFile ? 0 : size;
}
