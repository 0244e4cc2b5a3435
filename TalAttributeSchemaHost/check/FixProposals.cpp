#include "TalAttributeSchemaHost/check/FixProposals.h"

#include <algorithm>
#include <map>
#include <utility>

#include "TalAttributeSchemaHost/table/FormatLookup.h"
#include "TalAttributeSchemaHost/text/Utf8.h"
#include "TalAttributeSchemaReader/format/NodeName.h"

namespace tal {

std::vector<FixProposal> AttributeRenames::TakeCertain(const ElementType& type,
                                                       const std::vector<XmlAttribute>& attributes,
                                                       std::size_t markup)
{
    if (m_renames.empty()) // as nearly always
        return {};
    std::map<std::string, std::size_t> wanted;
    for (const Rename& rename : m_renames)
        ++wanted[rename.meant];
    std::vector<FixProposal> certain;
    for (const Rename& rename : m_renames) {
        if (wanted[rename.meant] == 1 && !IsTaken(rename, type, attributes))
            certain.push_back(
                {rename.finding,
                 {{{AnchorKind::AttributeName, markup, 0, ToUtf8(rename.name), true}, rename.meant}}});
    }
    m_renames.clear();
    return certain;
}

bool AttributeRenames::IsTaken(const Rename& rename, const ElementType& type,
                               const std::vector<XmlAttribute>& attributes) const
{
    const auto* const rule =
        std::find_if(type.attributes.begin(), type.attributes.end(),
                     [&](const AttributeRule& candidate) { return rename.meant == candidate.name; });
    return std::any_of(attributes.begin(), attributes.end(), [&](const XmlAttribute& attribute) {
        return attribute.name != rename.name && Matches(type, *rule, attribute.name);
    });
}

std::vector<PlacelessEdit> ElementRenames::Edits(const std::string& name, std::size_t start, std::size_t end)
{
    std::vector<PlacelessEdit> edits = {{{AnchorKind::TagName, start}, name}};
    if (end != start)
        edits.push_back({{AnchorKind::TagName, end}, name});
    return edits;
}

bool ElementRenames::IsOnlyOne(const Rename& rename) const
{
    return std::all_of(m_renames.begin(), m_renames.end(),
                       [&](const Rename& other) { return &other == &rename || other.meant != rename.meant; });
}

} // namespace tal
