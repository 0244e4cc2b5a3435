// Which definitions a document has, and which references name none of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "TalAttributeSchemaHost/check/IdTable.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"

namespace tal {

/// A definition that nobody reads, because it stands in an element that is skipped.
struct HiddenDefinition
{
    std::size_t markup;               // the tag
    std::optional<std::size_t> cause; // the number of the finding about the element that is skipped
};

struct Reference
{
    Definition kind;
    std::basic_string<XMLCh> id;
    const char* attribute;
    std::size_t markup;
    std::string path;
    std::string identity;                                  // as that of a finding
    std::optional<HiddenDefinition> hidden = std::nullopt; // what it names
    std::string suggestion = {};                           // what it may be meant to name
};

/// Memory grows with the definitions and with the references that come before their definitions; beyond a
/// bound, these only count.
class References
{
public:
    /// Up to `mostAwaiting` references keep their places while nothing is defined that they name.
    explicit References(std::size_t mostAwaiting) : m_mostAwaiting(mostAwaiting) {}

    /// Takes a definition in the tag `markup`. Returns the tag of the first one when there is one already.
    std::optional<std::size_t> Define(Definition kind, XmlView id, std::size_t markup);

    /// Takes a definition that is not read. Of several ones the first counts.
    void Hide(Definition kind, XmlView id, const HiddenDefinition& definition);

    bool IsDefined(Definition kind, XmlView id) const;
    /// Keeps a reference to something that is not defined so far.
    void Await(Reference reference);
    /// Those that are still not defined, with what is known about what they name.
    std::vector<Reference> TakeDangling();
    /// How many more there are, without their places.
    std::size_t CountFurtherDangling() const;

private:
    void Explain(Reference& reference);
    std::string Nearest(Definition kind, const std::basic_string<XMLCh>& id);

    using Text = std::basic_string<XMLCh>;

    std::array<IdTable, static_cast<std::size_t>(Definition::Entity) + 1> m_definitions; // of each kind
    std::size_t m_mostAwaiting;
    std::map<std::pair<Definition, Text>, HiddenDefinition> m_hidden;
    std::map<std::pair<Definition, Text>, std::string> m_suggestions;
    std::uint64_t m_compared = 0; // letters by letters, in search of suggestions
    std::vector<Reference> m_awaiting;
    /// How many there are besides those that are awaiting, by what they name.
    std::map<std::pair<Definition, std::basic_string<XMLCh>>, std::size_t> m_further;
};

} // namespace tal
