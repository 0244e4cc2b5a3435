// Which changes of names are certain: whoever knows one name only cannot tell.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/findings/PlacelessFinding.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"

namespace tal {

/// What puts a finding right.
struct FixProposal
{
    std::size_t finding; // its index
    std::vector<PlacelessEdit> edits;
};

/// Names that attributes of one element were meant to have.
class AttributeRenames
{
public:
    /// `name` must live as long as the element's attributes.
    void Propose(std::size_t finding, const XMLCh* name, std::string meant)
    {
        m_renames.push_back({finding, name, std::move(meant)});
    }
    /// Those that no other attribute has or was meant to have. Nothing is proposed afterwards.
    std::vector<FixProposal> TakeCertain(const ElementType& type, const std::vector<XmlAttribute>& attributes,
                                         std::size_t markup);

private:
    struct Rename
    {
        std::size_t finding;
        const XMLCh* name;
        std::string meant;
    };

    bool IsTaken(const Rename& rename, const ElementType& type,
                 const std::vector<XmlAttribute>& attributes) const;

    std::vector<Rename> m_renames;
};

/// Names that elements in one element were meant to have.
class ElementRenames
{
public:
    /// `markup` is that of the element's start tag.
    void Propose(std::size_t finding, const ElementRule& meant, std::size_t markup)
    {
        m_renames.push_back({finding, &meant, markup, markup});
    }
    /// The element that was proposed last ends with this tag.
    void End(std::size_t markup) { m_renames.back().end = markup; }

    /// The lists' entries, and of other elements those that nothing else takes the place of: `isThere` says
    /// whether there is such an element already. Nothing is proposed afterwards.
    template <class IsThere>
    std::vector<FixProposal> TakeCertain(IsThere isThere)
    {
        std::vector<FixProposal> certain;
        for (const Rename& rename : m_renames) {
            if (rename.meant->list || (!isThere(*rename.meant) && IsOnlyOne(rename)))
                certain.push_back({rename.finding, Edits(rename.meant->name, rename.start, rename.end)});
        }
        m_renames.clear();
        return certain;
    }

    /// Of both tags, or of the only one.
    static std::vector<PlacelessEdit> Edits(const std::string& name, std::size_t start, std::size_t end);

private:
    struct Rename
    {
        std::size_t finding;
        const ElementRule* meant;
        std::size_t start; // markup
        std::size_t end;
    };

    bool IsOnlyOne(const Rename& rename) const;

    std::vector<Rename> m_renames;
};

} // namespace tal
