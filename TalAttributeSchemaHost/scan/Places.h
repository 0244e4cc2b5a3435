// Looking up where anchors are in a document.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/scan/Anchor.h"
#include "TalAttributeSchemaHost/scan/Range.h"
#include "TalAttributeSchemaHost/scan/SourceText.h"

namespace tal {

/// The range of each anchor, in the order of the anchors. One pass over the text finds the markup, a second
/// one counts lines and columns, however many anchors there are. Of a report about another file only the line
/// and the column are known.
std::vector<Range> FindPlaces(const SourceText& source, const std::vector<const Anchor*>& anchors);

/// The lines in which the ranges begin, in UTF-8 and without their ends, by their numbers.
std::map<std::size_t, std::string> LinesOf(const SourceText& source, const std::vector<Range>& ranges);

} // namespace tal
