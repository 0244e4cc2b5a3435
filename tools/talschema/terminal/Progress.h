// Says on a terminal what takes so long.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// One line on the standard error stream, written over again and gone in the end. Only for a large document
/// or many of them, and never when the stream is no terminal.
class Progress
{
public:
    /// Documents of this many bytes and more are announced one by one; so is every one of this many.
    static constexpr std::uintmax_t kLargeDocument = std::uintmax_t{20} * 1000 * 1000;
    static constexpr std::size_t kManyDocuments = 20;

    explicit Progress(std::size_t documents = 1);
    ~Progress() { Clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Before the next document is read. `size` in bytes, 0 when nobody knows.
    void Next(const std::string& name, std::uintmax_t size);
    /// Before anything else is written to the terminal.
    void Clear();

private:
    bool m_onTerminal;
    bool m_shown = false;
    std::size_t m_number = 0;
    std::size_t m_documents;
};

/// As a progress needs it: 0 for what is no regular file.
std::uintmax_t SizeOfDocument(const std::string& name);
