#include "TalAttributeSchemaReader/dom/ParseMemory.h"

#include <cstdlib>
#include <utility>

#include <xercesc/internal/XMLReader.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

using namespace xercesc;

struct alignas(alignof(std::max_align_t)) ParseMemory::Block
{
    Block* previous;
    Block* next;
    XMLSize_t size;
};

namespace {

// The parser makes one such object for the document and one for each entity that it expands. They are large,
// and nothing else has their size.
XMLSize_t SizeOfExpansion()
{
    return XMLPlatformUtils::alignPointerForNewBlockAllocation(sizeof(void*)) + sizeof(XMLReader);
}

} // namespace

ParseMemory::~ParseMemory()
{
    while (m_blocks) {
        Block* const previous = m_blocks->previous;
        std::free(m_blocks);
        m_blocks = previous;
    }
    std::free(m_spare);
}

void* ParseMemory::allocate(XMLSize_t size)
{
    const bool isExpansion = size == SizeOfExpansion();
    const bool tooMany = isExpansion && m_expansions > kMostExpansions;
    if (tooMany || size > m_most - m_held) {
        m_exceeded = true;
        Refuse();
    }
    auto* const block = isExpansion && m_spare ? std::exchange(m_spare, nullptr)
                                               : static_cast<Block*>(std::malloc(sizeof(Block) + size));
    if (!block)
        Refuse();
    block->previous = m_blocks;
    block->next = nullptr;
    block->size = size;
    if (m_blocks)
        m_blocks->next = block;
    m_blocks = block;
    m_held += size;
    m_expansions += isExpansion ? 1 : 0;
    return block + 1;
}

void ParseMemory::deallocate(void* memory)
{
    if (!memory)
        return;
    Block* const block = static_cast<Block*>(memory) - 1;
    (block->next ? block->next->previous : m_blocks) = block->previous;
    if (block->previous)
        block->previous->next = block->next;
    m_held -= block->size;
    if (!m_spare && block->size == SizeOfExpansion())
        m_spare = block;
    else
        std::free(block);
}

MemoryManager* ParseMemory::getExceptionMemoryManager()
{
    return XMLPlatformUtils::fgMemoryManager;
}

void ParseMemory::Refuse()
{
    throw OutOfMemoryException();
}
