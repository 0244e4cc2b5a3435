#include "TalAttributeSchemaHost/check/IdentityKey.h"

#include <algorithm>
#include <string_view>

#include "TalAttributeSchemaHost/check/FormatLookup.h"
#include "TalAttributeSchemaHost/text/Utf8.h"

namespace tal {

std::string KeyOf(const ElementType& type, const std::vector<XmlAttribute>& attributes)
{
    const auto first = [&](auto isKey) {
        return std::find_if(type.attributes.begin(), type.attributes.end(), isKey);
    };
    const AttributeRule* rule = first([](const AttributeRule& r) { return r.defines != Definition::None; });
    if (rule == type.attributes.end())
        rule = first([](const AttributeRule& r) { return r.refersTo != Definition::None; });
    if (rule == type.attributes.end())
        rule = first([](const AttributeRule& r) { return std::string_view(r.name) == "Name"; });
    const XmlAttribute* const key =
        rule == type.attributes.end() ? nullptr : FindAttribute(type, *rule, attributes);
    return key ? ToUtf8(key->value.data()) : std::string();
}

} // namespace tal
