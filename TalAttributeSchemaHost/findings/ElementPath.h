// The path of the element at which a walk stands.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "TalAttributeSchemaHost/scan/DocumentScan.h"

namespace tal {

/// "/Model/Entities/Entity[2]": names, and numbers among siblings of one name where there can be several.
class ElementPath
{
public:
    /// `number` counts from 1. It is part of the step when the element is one of a list, or not the first.
    /// The name is not copied. `key` tells the element from its siblings even when these move, or is empty.
    void Enter(std::string_view name, bool inList, std::size_t number, XmlView key = {})
    {
        if (m_depth == m_steps.size())
            m_steps.emplace_back();
        Step& step = m_steps[m_depth++];
        step.name = name;
        step.number = inList || number > 1 ? number : 0;
        step.key = key;
    }
    void Leave() { --m_depth; }

    /// Steps in the middle of a very deep path are left out: a path through a thousand folders helps nobody.
    std::string Text() const { return Text(false); }
    /// The same with keys in the place of numbers, where elements have one: "/Model/Entities/Entity[Fan]". In
    /// a key, "/", "[", "]" and "%" are escaped as in a URI.
    std::string Identity() const { return Text(true); }

private:
    struct Step
    {
        std::string_view name;
        std::size_t number; // 0 where it is not shown
        std::basic_string<XMLCh> key;
    };

    std::string Text(bool withKeys) const;

    std::vector<Step> m_steps; // a step that was left keeps its memory for the next one
    std::size_t m_depth = 0;
};

} // namespace tal
