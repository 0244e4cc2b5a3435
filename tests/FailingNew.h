// Allocations that count, and one of which fails when asked to. One source of a program includes this: it
// replaces operator new.
#pragma once

#include <cstdlib>
#include <new>

namespace allocations {

inline thread_local long made = 0;
inline thread_local long live = 0;
inline thread_local long left = 0; // until one fails; 0 when none does

/// In it, the allocation `failing` fails, counted from 1; 0 for none.
class Window
{
public:
    explicit Window(long failing = 0) : m_before(made) { left = failing; }
    ~Window() { left = 0; }

    long Made() const { return made - m_before; }

private:
    long m_before;
};

} // namespace allocations

void* operator new(std::size_t size)
{
    ++allocations::made;
    if (allocations::left > 0 && --allocations::left == 0)
        throw std::bad_alloc();
    void* const memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    ++allocations::live;
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept
{
    allocations::live -= memory ? 1 : 0;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}
