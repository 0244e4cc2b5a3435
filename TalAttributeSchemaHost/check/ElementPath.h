// The path of the element at which a walk stands.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tal {

/// "/Model/Entities/Entity[2]": names, and numbers among siblings of one name where there can be several.
class ElementPath
{
public:
    /// `number` counts from 1. It is part of the step when the element is one of a list, or not the first.
    /// The name is not copied. `key` tells the element from its siblings even when these move, or is empty.
    void Enter(std::string_view name, bool inList, std::size_t number, std::string key = {})
    {
        m_steps.push_back({name, inList || number > 1 ? number : 0, std::move(key)});
    }
    void Leave() { m_steps.pop_back(); }

    /// Steps in the middle of a very deep path are left out: a path through a thousand folders helps nobody.
    std::string Text() const { return Text(false); }
    /// The same with keys in the place of numbers, where elements have one: "/Model/Entities/Entity[Fan]". In
    /// a key,
    /// "/", "[", "]" and "%" are escaped as in a URI.
    std::string Identity() const { return Text(true); }

private:
    struct Step
    {
        std::string_view name;
        std::size_t number; // 0 where it is not shown
        std::string key;
    };

    std::string Text(bool withKeys) const;

    std::vector<Step> m_steps;
};

} // namespace tal
