// The name test.
#pragma once

#include "TalAttributeSchemaReader/model/genutl/GuString.h"

/// The name of an element or attribute, a view of null-terminated text; equal to an ASCII literal when both
/// have exactly the same characters.
class NodeName
{
public:
    explicit NodeName(const GuChar* name) : m_name(name) {}

    friend bool operator==(NodeName name, const char* literal)
    {
        const GuChar* unit = name.m_name;
        while (*literal && *unit == static_cast<GuChar>(*literal)) {
            ++unit;
            ++literal;
        }
        return *unit == static_cast<GuChar>(*literal);
    }

    explicit operator GuString() const { return GuString(m_name); }

private:
    const GuChar* m_name;
};
