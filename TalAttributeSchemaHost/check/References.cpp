#include "TalAttributeSchemaHost/check/References.h"

#include <algorithm>
#include <utility>

#include "TalAttributeSchemaHost/text/NearNames.h"
#include "TalAttributeSchemaHost/text/Utf8.h"

namespace tal {

namespace {

constexpr std::size_t kLongestSuggestion = 100;
// Many wrong references and many definitions would take their product of time.
constexpr std::uint64_t kMostCompared = std::uint64_t{100} * 1000 * 1000;

std::string WithoutDigits(std::string text)
{
    text.erase(
        std::remove_if(text.begin(), text.end(), [](char letter) { return letter >= '0' && letter <= '9'; }),
        text.end());
    return text;
}

} // namespace

std::optional<std::size_t> References::Define(Definition kind, XmlView id, std::size_t markup)
{
    return m_definitions[static_cast<std::size_t>(kind)].Add(id, markup);
}

void References::Hide(Definition kind, XmlView id, const HiddenDefinition& definition)
{
    m_hidden.emplace(std::pair(kind, Text(id)), definition);
}

bool References::IsDefined(Definition kind, XmlView id) const
{
    return m_definitions[static_cast<std::size_t>(kind)].Has(id);
}

void References::Await(Reference reference)
{
    if (m_awaiting.size() < m_mostAwaiting)
        m_awaiting.push_back(std::move(reference));
    else
        ++m_further[{reference.kind, std::move(reference.id)}];
}

std::size_t References::CountFurtherDangling() const
{
    std::size_t count = 0;
    for (const auto& [named, number] : m_further)
        count += IsDefined(named.first, named.second) ? 0 : number;
    return count;
}

std::vector<Reference> References::TakeDangling()
{
    m_awaiting.erase(
        std::remove_if(m_awaiting.begin(), m_awaiting.end(),
                       [&](const Reference& reference) { return IsDefined(reference.kind, reference.id); }),
        m_awaiting.end());
    for (Reference& reference : m_awaiting)
        Explain(reference);
    return std::move(m_awaiting);
}

void References::Explain(Reference& reference)
{
    const auto found = m_hidden.find({reference.kind, reference.id});
    if (found != m_hidden.end())
        reference.hidden = found->second;
    else
        reference.suggestion = Nearest(reference.kind, reference.id);
}

std::string References::Nearest(Definition kind, const std::basic_string<XMLCh>& id)
{
    const auto [known, isNew] = m_suggestions.emplace(std::pair(kind, id), std::string());
    if (!isNew)
        return known->second;
    const std::string wanted = ToUtf8(id.c_str());
    const std::string letters = WithoutDigits(wanted);
    std::vector<std::string> names; // in the order of the document
    bool exhausted = wanted.size() > kLongestSuggestion;
    m_definitions[static_cast<std::size_t>(kind)].ForEach([&](XmlView defined) {
        exhausted = exhausted || m_compared > kMostCompared;
        if (exhausted || defined.size() > kLongestSuggestion)
            return;
        m_compared += wanted.size() * defined.size() + 1;
        std::string name = ToUtf8(defined.data());
        if (WithoutDigits(name) != letters) // one number is as good as another
            names.push_back(std::move(name));
    });
    if (exhausted)
        return {};
    known->second = NearestName(wanted, names);
    return known->second;
}

} // namespace tal
