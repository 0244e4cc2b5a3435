// The heap of the C run-time library, for containers.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

/// Takes memory from `malloc`. Throws `std::bad_alloc` when there is none.
struct GuCRTAllocator
{
    /// Memory for `count` objects of `size` bytes; `size` must not be 0.
    static void* Allocate(std::size_t count, std::size_t size)
    {
        if (count > (std::numeric_limits<std::size_t>::max)() / size) // not the macro of <windows.h>
            throw std::bad_alloc();
        if (void* memory = std::malloc(count * size))
            return memory;
        throw std::bad_alloc();
    }
    /// Gives back what `Allocate` returned; null is accepted.
    static void Free(void* memory) noexcept { std::free(memory); }
};
