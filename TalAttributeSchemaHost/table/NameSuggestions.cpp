#include "TalAttributeSchemaHost/table/NameSuggestions.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

#include "TalAttributeSchemaHost/text/NearNames.h"

namespace tal {

namespace {

/// The nearest of the names; one that differs in letter case only comes first.
Suggestion Suggest(const std::string& name, const std::vector<std::string>& known)
{
    const auto sameLetters = std::find_if(known.begin(), known.end(), [&](const std::string& candidate) {
        return EqualIgnoringCase(name, candidate);
    });
    const bool onlyCase = sameLetters != known.end();
    const std::string nearest = onlyCase ? *sameLetters : NearestName(name, known);
    return {nearest, onlyCase, !nearest.empty() && CertainName(name, known) == nearest};
}

} // namespace

Suggestion SuggestElement(const ElementType& type, const std::string& name)
{
    std::vector<std::string> known;
    for (const ElementRule& rule : type.elements)
        known.emplace_back(rule.name);
    return Suggest(name, known);
}

Suggestion SuggestAttribute(const ElementType& type, const std::string& name)
{
    std::vector<std::string> read;
    std::vector<std::string> notRead;
    for (const AttributeRule& rule : type.attributes)
        (rule.notRead == FindingId::None ? read : notRead).emplace_back(rule.name);
    Suggestion suggestion = Suggest(name, read);
    const std::string near = suggestion.name.empty() ? Suggest(name, notRead).name : std::string();
    for (const AttributeRule& rule : type.attributes) {
        if (near == rule.name && rule.writtenFrom)
            return {rule.writtenFrom};
    }
    return suggestion;
}

std::string SuggestFlag(const GuString& value)
{
    const auto isOneOf = [&](std::initializer_list<const char*> words) {
        return std::any_of(words.begin(), words.end(),
                           [&](const char* word) { return value.CompareNoCase(GuString(word)) == 0; });
    };
    return isOneOf({"Yes", "true", "1"}) ? "Yes" : isOneOf({"No", "false", "0"}) ? "No" : "";
}

} // namespace tal
