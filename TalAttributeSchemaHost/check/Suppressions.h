// Comments of a document that ask not to be told of a finding.
#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "TalAttributeSchemaHost/check/Check.h"
#include "TalAttributeSchemaHost/findings/FindingRules.h"

namespace tal {

/// `<!-- talschema-disable-next-line ID, ID: reason -->`, or `talschema-disable` for all that follows up to
/// the end of the element around it.
struct Suppression
{
    struct Subject
    {
        FindingId id;
        bool used = false;
    };

    bool nextLine = false;
    std::vector<Subject> subjects;
    std::string reason;
    std::size_t comment = 0; // the number of its markup
    std::size_t parentEnd =
        0;                // likewise of the tag that ends the element around it; 0 for the document's end
    std::string path;     // of the element around it
    std::string identity; // likewise, as that of a finding
    Range range = {};     // of the comment
    std::size_t end = 0;  // the offset up to which it counts, unless it is for one line
};

/// What a comment asks for.
struct ParsedSuppression
{
    bool isSuppression = false; // another comment otherwise
    std::string unknown;        // it, when it asks for something that does not exist
    Suppression suppression;    // with the identifiers that can be suppressed
    std::vector<std::string> unknownIdentifiers;
};

ParsedSuppression ParseSuppression(std::string_view comment);

/// True for what a comment can suppress: what does not keep a document from being read.
bool IsSuppressible(FindingId id);

std::vector<std::string> SuppressibleIdentifiers();
/// What the comments begin with.
std::vector<std::string> SuppressionWords();

/// The findings that follow from another one, which comes as the value.
using Causes = std::map<const Finding*, Finding*>;

/// Takes the findings that the comments ask for, where they stand or where their cause does, out of
/// `findings`, which are in the order of their places and call the document `name`, and marks what of the
/// comments was used. What is taken out causes nothing any more.
std::vector<SuppressedFinding> Suppress(std::list<Finding>& findings, Causes& causes,
                                        std::vector<Suppression>& suppressions, const std::string& name);

} // namespace tal
