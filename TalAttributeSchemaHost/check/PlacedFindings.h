// Findings whose places are looked up.
#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/check/CheckScan.h"
#include "TalAttributeSchemaHost/scan/Places.h"

namespace tal {

/// The ranges of all anchors, in the order in which `Take` gives them out again: first those of the findings,
/// then of each suppression its comment and the tag behind what it counts for.
class PlaceList
{
public:
    PlaceList(const Scanned& scanned, const SourceText& source);

    const std::vector<Range>& All() const { return m_ranges; }
    const Range& Take() { return m_ranges[m_taken++]; }

private:
    std::vector<Range> m_ranges;
    std::size_t m_taken = 0;
};

/// `name` is what findings call the document.
Finding Placed(PlacelessFinding finding, const std::string& name, const Range& range);
/// `causes` comes to hold what follows from which of them.
std::list<Finding> Placed(std::vector<PlacelessFinding>& placeless, PlaceList& places,
                          const std::string& name, Causes& causes);
/// Several findings that follow from another one go into that one.
void Fold(std::list<Finding>& findings, const Causes& causes);
/// Those in other files than the document come last.
void SortByPlace(std::list<Finding>& findings, const std::string& name);

ObjectPlaces PlacesOf(ObjectTags& objects, const SourceText& source);

} // namespace tal
