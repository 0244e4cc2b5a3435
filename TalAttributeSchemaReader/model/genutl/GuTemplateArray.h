// The array that the model's accessors return.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "TalAttributeSchemaReader/model/genutl/GuCRTAllocator.h"

/// Gives an allocation policy such as `GuCRTAllocator` the interface of a standard allocator.
template <class T, class Policy>
struct GuAllocatorAdaptor
{
    /// @{
    /// What the standard asks of an allocator. `Allocate` says what happens when there is no memory.
    using value_type = T;

    GuAllocatorAdaptor() noexcept = default;
    template <class Other>
    GuAllocatorAdaptor(const GuAllocatorAdaptor<Other, Policy>&) noexcept
    {
    }

    T* allocate(std::size_t count) { return static_cast<T*>(Policy::Allocate(count, sizeof(T))); }
    void deallocate(T* memory, std::size_t) noexcept { Policy::Free(memory); }

    friend bool operator==(GuAllocatorAdaptor, GuAllocatorAdaptor) noexcept { return true; }
    friend bool operator!=(GuAllocatorAdaptor, GuAllocatorAdaptor) noexcept { return false; }
    /// @}
};

/// An array of values that grows at its end and copies its values when it is copied. `Allocator` says where
/// its memory comes from.
template <class T, class Allocator>
class GuTemplateArray
{
public:
    /// The number of values.
    std::size_t GetSize() const noexcept { return m_values.size(); }
    /// @{
    /// `index` must be below `GetSize()`.
    const T& operator[](std::size_t index) const { return m_values[index]; }
    T& operator[](std::size_t index) { return m_values[index]; }
    /// @}
    /// Appends at the end.
    void Add(T value) { m_values.push_back(std::move(value)); }

    /// @{
    /// The values in their order.
    auto begin() const noexcept { return m_values.begin(); }
    auto end() const noexcept { return m_values.end(); }
    /// @}

private:
    std::vector<T, GuAllocatorAdaptor<T, Allocator>> m_values;
};
