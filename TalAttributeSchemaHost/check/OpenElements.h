// The elements that are open where a check stands.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/check/FindingLog.h"
#include "TalAttributeSchemaHost/check/FixProposals.h"
#include "TalAttributeSchemaHost/findings/ElementPath.h"
#include "TalAttributeSchemaHost/scan/DocumentScan.h"
#include "TalAttributeSchemaHost/table/FormatTable.h"
#include "TalAttributeSchemaHost/table/KnownAttributes.h"

namespace tal {

/// The elements in an open one that the format has not there.
struct Strangers
{
    std::map<std::string, std::size_t> numbers; // of each name, so far
    ElementRenames renames;
};

struct OpenElement
{
    const ElementRule* rule;
    std::size_t markup;
    std::size_t number = 1;                     // among the siblings of its name
    bool written = true;                        // a rewrite keeps it
    bool merged = false;                        // read like more of one that came before
    int level = 0;                              // of nested folders
    std::size_t selector = 0;                   // the open element whose attribute selects what is written
    GuString selected;                          // if it is this one: the attribute's value
    Match selects = Match::None;                // and how it is compared
    FindingId contentFinding = FindingId::None; // to be reported once, when there is content
    bool contentRead = true;
    bool hasElements = false;
    bool hasText = false;
    std::size_t numbers = 0;                   // where the numbers of the elements in it begin
    std::unique_ptr<Strangers> strangers = {}; // null while there are none
};

/// All but the first three members ask for an open element.
class OpenElements
{
public:
    /// `path` goes with the elements; it and the log must outlive them.
    OpenElements(ElementPath& path, FindingLog& log) : m_path(path), m_log(log) {}

    bool IsEmpty() const { return m_elements.empty(); }
    std::size_t GetDepth() const { return m_elements.size(); }
    void Open(OpenElement element, const KnownAttributes& attributes);
    void Close();

    OpenElement& Innermost() { return m_elements.back(); }
    /// How many elements of the rule there are so far in the innermost one.
    std::size_t& CountOf(const ElementRule& rule);
    /// Those in the innermost one.
    Strangers& GetStrangers();
    /// The attribute's value selects what of the innermost element is written.
    void SelectBy(Match match, XmlView value);
    /// The element that selects what of the innermost one is written.
    const OpenElement& Selector() const { return m_elements[m_elements.back().selector]; }

    std::string Name() const { return m_elements.back().rule->name; }
    Anchor Tag() const { return {AnchorKind::TagName, m_elements.back().markup}; }
    Anchor AttributeOf(AnchorKind kind, const XMLCh* name) const;

    /// Reports what a rewrite loses, unless the innermost element is lost anyway. Null when nothing is kept.
    PlacelessFinding* ReportLost(FindingId id, Anchor anchor, About about, Sentence sentence);

private:
    std::vector<OpenElement> m_elements;
    std::vector<std::size_t> m_numbers; // of elements so far, for every rule of every open element
    ElementPath& m_path;
    FindingLog& m_log;
};

} // namespace tal
