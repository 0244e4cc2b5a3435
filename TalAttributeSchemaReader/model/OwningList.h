// How a model object owns its children.
#pragma once

#include <memory>

/// A list whose objects live and die with it. `List` is the plain list type that the owner hands out for
/// walking: what a host adds to such a list belongs to the owner from then on.
template <class T, class List>
class OwningList
{
public:
    /// An empty list.
    OwningList() = default;
    OwningList(const OwningList&) = delete;
    OwningList& operator=(const OwningList&) = delete;
    /// Deletes all objects.
    ~OwningList()
    {
        // Each object goes together with its node: memory that is freed in one piece costs far less to give
        // back.
        while (m_objects.GetHead())
            delete static_cast<T*>(m_objects.TakeFirst());
    }

    /// Appends a new object.
    T* Create()
    {
        auto object = std::make_unique<T>();
        m_objects.Add(object.get());
        return object.release();
    }

    /// @{
    /// The plain list, which stays here.
    List& Get() { return m_objects; }
    const List& Get() const { return m_objects; }
    /// @}

private:
    List m_objects;
};
