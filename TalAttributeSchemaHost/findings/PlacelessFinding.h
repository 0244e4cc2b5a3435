// A finding whose place is not looked up yet.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/findings/FindingRules.h"
#include "TalAttributeSchemaHost/findings/Sentence.h"
#include "TalAttributeSchemaHost/scan/Anchor.h"

namespace tal {

/// An edit whose place is not looked up yet.
struct PlacelessEdit
{
    Anchor anchor;
    std::string replacement;
};

struct PlacelessFinding
{
    FindingId id;
    Anchor anchor;
    std::string path;
    std::string subject;
    std::string suggestion;
    Sentence sentence;
    std::unique_ptr<Anchor> earlier = nullptr; // of the definition whose line the sentence names, or null
    std::optional<std::size_t> cause = std::nullopt; // the number of the finding from which this one follows
    std::vector<PlacelessEdit> edits = {};           // that put it right, where that is certain
    std::string identity = {};
};

} // namespace tal
