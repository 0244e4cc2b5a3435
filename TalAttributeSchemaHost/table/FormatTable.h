// What the format knows: the elements and attributes of attribute-schema.xsd, as a table made from it when
// the library is built.
#pragma once

#include <cstddef>

#include "TalAttributeSchemaHost/findings/FindingRules.h"

namespace tal {

/// A part of an array.
template <class T>
struct Rows
{
    const T* first;
    std::size_t count;

    const T* begin() const { return first; }
    const T* end() const { return first + count; }
};

/// How a value is compared, where it is compared at all.
enum class Match
{
    None,
    Exact,
    IgnoreCase
};

/// What an identifier stands for.
enum class Definition
{
    None,
    Attribute,
    File,
    Group,
    Entity
};

/// The members of the following rules are explained where attribute-schema.xsd begins.
struct AttributeRule
{
    const char* name;
    bool required;
    Match flag;
    Match selects;
    Definition defines;
    Definition refersTo;
    FindingId ifEmpty;
    FindingId notWritten;
    FindingId notRead;
    const char* writtenFrom;
};

struct ElementType;

struct ElementRule
{
    const char* name;
    const ElementType* type;
    bool list;
    bool maxLevel;
    FindingId notWritten;
    const char* onlyFor;
};

struct ElementType
{
    Rows<ElementRule> elements;
    Rows<AttributeRule> attributes;
    const AttributeRule* key; // tells an element from its siblings even when these move; null where none does
    bool anyElements;
    bool anyAttributes;
    Match attributeNames;
    FindingId contentNotWritten;
    FindingId withoutAttributes;
    FindingId contentWithoutAttributes;
    FindingId withoutElements;
};

extern const ElementRule kRootElement;
extern const Rows<ElementType> kElementTypes;

} // namespace tal
