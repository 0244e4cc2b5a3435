#include "TalAttributeSchemaHost/table/FormatLookup.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "TalAttributeSchemaReader/format/NodeName.h"
#include "TalAttributeSchemaReader/format/YesNo.h"
#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"

namespace tal {

namespace {

/// As `GuString` compares.
bool IsIgnoringCase(const XMLCh* name, const char* literal)
{
    const auto fold = [](XMLCh unit) { return unit >= 'A' && unit <= 'Z' ? unit + ('a' - 'A') : unit; };
    while (*literal && fold(*name) == fold(static_cast<XMLCh>(*literal))) {
        ++name;
        ++literal;
    }
    return !*name && !*literal;
}

} // namespace

const ElementRule* FindElement(const ElementType& type, const XMLCh* name)
{
    const auto found = std::find_if(type.elements.begin(), type.elements.end(),
                                    [&](const ElementRule& rule) { return NodeName(name) == rule.name; });
    return found == type.elements.end() ? nullptr : found;
}

bool Matches(const ElementType& type, const AttributeRule& rule, const XMLCh* name)
{
    // A name that is not read is not matched by the reader either.
    if (type.attributeNames == Match::IgnoreCase && rule.notRead == FindingId::None)
        return IsIgnoringCase(name, rule.name);
    return NodeName(name) == rule.name;
}

const AttributeRule* SourceOf(const ElementType& type, const AttributeRule& rule)
{
    if (!rule.writtenFrom)
        return nullptr;
    return std::find_if(type.attributes.begin(), type.attributes.end(), [&](const AttributeRule& other) {
        return std::string_view(other.name) == rule.writtenFrom;
    });
}

const AttributeRule* FindDefining(const XMLCh* name)
{
    for (const ElementType& type : kElementTypes) {
        const ElementRule* const element = FindElement(type, name);
        if (!element)
            continue;
        for (const AttributeRule& rule : element->type->attributes) {
            if (rule.defines != Definition::None)
                return &rule;
        }
    }
    return nullptr;
}

std::vector<std::string> ReadAttributes(const ElementType& type)
{
    std::vector<std::string> names;
    for (const AttributeRule& rule : type.attributes) {
        if (rule.notRead == FindingId::None)
            names.emplace_back(rule.name);
    }
    return names;
}

std::vector<std::string> ParentsOf(const XMLCh* name)
{
    if (NodeName(name) == kRootElement.name)
        return {""};
    std::set<std::string> parents;
    const auto takeWhere = [&](const ElementRule& rule, const ElementType& parentType) {
        if (rule.type == &parentType)
            parents.insert(rule.name);
    };
    for (const ElementType& parentType : kElementTypes) {
        if (!FindElement(parentType, name))
            continue;
        for (const ElementType& type : kElementTypes) {
            for (const ElementRule& rule : type.elements)
                takeWhere(rule, parentType);
        }
        takeWhere(kRootElement, parentType);
    }
    return {parents.begin(), parents.end()};
}

bool CountsAsYes(const GuString& value, Match flag)
{
    return flag == Match::Exact ? IsYes(value) : IsYesIgnoringCase(value);
}

bool IsFlagValue(const GuString& value, Match flag)
{
    return CountsAsYes(value, flag) ||
           (flag == Match::Exact ? value.Compare("No") : value.CompareNoCase("No")) == 0;
}

bool BelongsToXml(const std::string& name)
{
    const auto startsWith = [&](const std::string& prefix) { return name.rfind(prefix, 0) == 0; };
    return name == "xmlns" || startsWith("xmlns:") || startsWith("xml:") || startsWith("xsi:");
}

bool SurvivesWriting(XmlView value)
{
    const auto isPlain = [](XMLCh unit) { return unit >= 0x20 && unit < 0x7F; };
    return std::all_of(value.begin(), value.end(), isPlain) ||
           GuString(GuConversionAllocator().UnicodeToAnsi(value.data())) == value.data();
}

} // namespace tal
