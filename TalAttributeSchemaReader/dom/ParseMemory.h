// The memory of one parse, and its bounds.
#pragma once

#include <cstddef>
#include <cstdint>

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/XercesDefs.hpp>

/// Where a parser gets its memory from. It keeps hostile documents of a few hundred bytes from costing
/// minutes and gigabytes: the parser's own limit of expanded entities holds outside of the document type
/// only, and no limit of it looks at memory. Beyond a bound the parser meets `OutOfMemoryException`, as if
/// there were no more memory.
///
/// Everything that the parser leaves behind goes with this object, so it must outlive the parser.
class ParseMemory : public xercesc::MemoryManager
{
public:
    /// Entities that are expanded, wherever they are referred to; the parser's own limit is the same.
    static constexpr std::uint64_t kMostExpansions = 50'000;
    /// Memory in bytes, and that much more for each byte of the document. The largest ratio of an honest one
    /// that was measured is 73.
    static constexpr std::uint64_t kMostMemory = std::uint64_t{64} * 1024 * 1024;
    static constexpr std::uint64_t kMostMemoryPerByte = 128;

    /// The bound of the memory for a document of that many bytes.
    static constexpr std::uint64_t MostMemory(std::uint64_t documentSize)
    {
        return kMostMemory + kMostMemoryPerByte * documentSize;
    }

    explicit ParseMemory(std::uint64_t documentSize) : m_most(MostMemory(documentSize)) {}
    ParseMemory(const ParseMemory&) = delete;
    ParseMemory& operator=(const ParseMemory&) = delete;
    ~ParseMemory() override;

    void* allocate(XMLSize_t size) override;
    void deallocate(void* memory) override;
    /// Exceptions outlive a parse.
    xercesc::MemoryManager* getExceptionMemoryManager() override;

    /// True once a bound was met.
    bool IsExceeded() const { return m_exceeded; }

private:
    struct Block; // in front of all memory that is given out

    [[noreturn]] static void Refuse();

    Block* m_blocks = nullptr; // the last one that was given out
    Block* m_spare = nullptr;  // of an expansion that is over; giving it back and taking it anew costs most
    std::uint64_t m_held = 0;
    std::uint64_t m_most;
    std::uint64_t m_expansions = 0;
    bool m_exceeded = false;
};
