#include "TalAttributeSchemaHost/check/OpenElements.h"

#include <utility>

#include "TalAttributeSchemaHost/text/Utf8.h"

namespace tal {

void OpenElements::Open(OpenElement element, const KnownAttributes& attributes)
{
    const ElementType& type = *element.rule->type;
    const bool list = element.rule->list;
    const XmlAttribute* const key = list && type.key ? attributes.Find(*type.key) : nullptr;
    m_path.Enter(element.rule->name, list, element.number, key ? key->value : XmlView());
    element.numbers = m_numbers.size();
    m_numbers.resize(element.numbers + type.elements.count);
    m_elements.push_back(std::move(element));
}

void OpenElements::Close()
{
    m_numbers.resize(m_elements.back().numbers);
    m_elements.pop_back();
    m_path.Leave();
}

std::size_t& OpenElements::CountOf(const ElementRule& rule)
{
    const OpenElement& element = m_elements.back();
    return m_numbers[element.numbers + static_cast<std::size_t>(&rule - element.rule->type->elements.first)];
}

Strangers& OpenElements::GetStrangers()
{
    std::unique_ptr<Strangers>& strangers = m_elements.back().strangers;
    if (!strangers)
        strangers = std::make_unique<Strangers>();
    return *strangers;
}

void OpenElements::SelectBy(Match match, XmlView value)
{
    OpenElement& element = m_elements.back();
    element.selector = m_elements.size() - 1;
    element.selects = match;
    element.selected = value.data();
}

Anchor OpenElements::AttributeOf(AnchorKind kind, const XMLCh* name) const
{
    return {kind, m_elements.back().markup, 0, ToUtf8(name)};
}

PlacelessFinding* OpenElements::ReportLost(FindingId id, Anchor anchor, About about, Sentence sentence)
{
    return m_elements.back().written
               ? m_log.Report(id, std::move(anchor), std::move(about), std::move(sentence))
               : nullptr;
}

} // namespace tal
