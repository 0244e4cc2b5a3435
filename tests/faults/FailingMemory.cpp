// Preloaded into a process: the allocation whose number, counted from 1, is in FAULT_ALLOCATION fails, and
// the file FAULT_REPORT says so by being there. Allocations in front of `main` do not count.
#include <cstdio>
#include <cstdlib>
#include <new>

#include <dlfcn.h>

namespace {

long left = 0;

[[noreturn]] void Fail()
{
    std::fclose(std::fopen(std::getenv("FAULT_REPORT"), "w"));
    throw std::bad_alloc();
}

} // namespace

// The first thing that the tool calls.
extern "C" char* setlocale(int category, const char* locale) noexcept
{
    if (const char* const number = std::getenv("FAULT_ALLOCATION"))
        left = std::atol(number);
    using SetLocale = char* (*)(int, const char*);
    return reinterpret_cast<SetLocale>(dlsym(RTLD_NEXT, "setlocale"))(category, locale);
}

void* operator new(std::size_t size)
{
    if (left > 0 && --left == 0)
        Fail();
    if (void* const memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
