// What `talschema check` found in a document.
#pragma once

#include <string>

#include "tools/talschema/DocumentScan.h"
#include "tools/talschema/FindingRules.h"

struct Finding
{
    FindingId id;
    Place place;
    std::string path;    // of the element; empty in front of the root
    std::string message; // one sentence, safe for a terminal
};
