// Memory that is given out piece by piece and taken back all at once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tal {

/// Unlike the standard library's monotonic resource it can make the last piece longer. Nothing in it is
/// destroyed.
class Arena
{
public:
    /// Throws `std::bad_alloc` when memory runs out.
    template <class T>
    T* Allocate(std::size_t count)
    {
        static_assert(alignof(T) <= alignof(std::max_align_t));
        const std::size_t size = count * sizeof(T);
        const std::size_t padding = -reinterpret_cast<std::uintptr_t>(m_next) % alignof(T);
        if (padding + size > m_left) {
            AddBlock(size);
            return Take<T>(size);
        }
        m_next += padding;
        m_left -= padding;
        return Take<T>(size);
    }

    /// Makes the piece one longer where it stands, if it is the last one and there is room.
    template <class T>
    bool Extend(const T* piece, std::size_t count)
    {
        if (reinterpret_cast<const std::byte*>(piece + count) != m_next || sizeof(T) > m_left)
            return false;
        Take<T>(sizeof(T));
        return true;
    }

private:
    static constexpr std::size_t kFirstBlock = std::size_t{4} * 1024;
    static constexpr std::size_t kLargestBlock = std::size_t{4} * 1024 * 1024;

    template <class T>
    T* Take(std::size_t size)
    {
        std::byte* const piece = m_next;
        m_next += size;
        m_left -= size;
        return reinterpret_cast<T*>(piece);
    }

    void AddBlock(std::size_t atLeast)
    {
        const std::size_t size = std::max(m_blockSize, atLeast);
        m_blocks.emplace_back(new std::byte[size]); // not to be filled with zeros
        m_next = m_blocks.back().get();
        m_left = size;
        m_blockSize = std::min(2 * m_blockSize, kLargestBlock);
    }

    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    std::byte* m_next = nullptr;
    std::size_t m_left = 0; // of the last block
    std::size_t m_blockSize = kFirstBlock;
};

} // namespace tal
