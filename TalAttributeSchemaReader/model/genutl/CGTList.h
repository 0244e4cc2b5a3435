// The linked list of the model.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>

/// A singly linked list of pointers. It owns its nodes, not what they point to; a copy has nodes of its own
/// and points to the same objects.
/// On Windows a host that uses `<windows.h>` includes it first: it defines a macro `GetObject`.
template <class T>
class CGTList
{
public:
    /// One entry. A node belongs to its list and stays where it is.
    class Node
    {
    public:
        /// An entry that nothing follows.
        explicit Node(T object) : m_object(object) {}
        /// What the entry points to.
        T GetObject() const { return m_object; }
        /// Null behind the last node.
        Node* GetNext() const { return m_next; }

    private:
        friend class CGTList;
        T m_object;
        Node* m_next = nullptr;
    };

    /// Goes from entry to entry.
    class Iterator
    {
    public:
        /// @{
        /// What the standard asks of a forward iterator.
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = const T*;
        using reference = T;

        explicit Iterator(const Node* node = nullptr) : m_node(node) {}
        T operator*() const { return m_node->GetObject(); }
        Iterator& operator++()
        {
            m_node = m_node->GetNext();
            return *this;
        }
        Iterator operator++(int) { return std::exchange(*this, Iterator(m_node->GetNext())); }
        friend bool operator==(Iterator left, Iterator right) { return left.m_node == right.m_node; }
        friend bool operator!=(Iterator left, Iterator right) { return left.m_node != right.m_node; }
        /// @}

    private:
        const Node* m_node;
    };

    /// An empty list.
    CGTList() = default;
    /// @{
    /// A copy points to the same objects; a list that is moved from is empty.
    CGTList(const CGTList& other) : CGTList()
    {
        for (const T object : other)
            Add(object);
    }
    CGTList(CGTList&& other) noexcept { Swap(other); }
    CGTList& operator=(CGTList other) noexcept
    {
        Swap(other);
        return *this;
    }
    /// @}
    /// Deletes the nodes, not what they point to.
    ~CGTList()
    {
        while (m_head)
            delete std::exchange(m_head, m_head->m_next);
    }

    /// Null when the list is empty.
    Node* GetHead() const { return m_head; }
    /// The number of entries.
    std::size_t GetCount() const { return m_count; }

    /// Appends at the end.
    void Add(T object)
    {
        *m_end = new Node(object);
        m_end = &(*m_end)->m_next;
        ++m_count;
    }

    /// Takes the first object out; the list must not be empty.
    T TakeFirst() noexcept
    {
        const std::unique_ptr<Node> first(m_head);
        m_head = first->m_next;
        if (!m_head)
            m_end = &m_head;
        --m_count;
        return first->m_object;
    }

    /// Moves all nodes of `other` behind the last one of this list; `other` is empty afterwards.
    void Splice(CGTList& other) noexcept
    {
        if (!other.m_head || &other == this)
            return;
        *m_end = std::exchange(other.m_head, nullptr);
        m_end = std::exchange(other.m_end, &other.m_head);
        m_count += std::exchange(other.m_count, 0);
    }

    /// @{
    /// The entries in their order.
    Iterator begin() const { return Iterator(m_head); }
    Iterator end() const { return Iterator(); }
    /// @}

private:
    void Swap(CGTList& other) noexcept
    {
        CGTList mine;
        mine.Splice(*this);
        Splice(other);
        other.Splice(mine);
    }

    Node* m_head = nullptr;
    Node** m_end = &m_head; // where the next node goes
    std::size_t m_count = 0;
};
