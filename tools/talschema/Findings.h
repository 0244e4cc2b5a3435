// What `talschema check` found in a document.
#pragma once

#include <string>
#include <vector>

#include "tools/talschema/DocumentScan.h"
#include "tools/talschema/FindingRules.h"

struct Finding
{
    FindingId id;
    Place place;
    std::string path;    // of the element; empty in front of the root
    std::string message; // one sentence, safe for a terminal
};

/// Checks the file at the absolute path `path`. The findings come in the order of their places.
std::vector<Finding> CheckFile(const GuString& path);
std::vector<Finding> CheckStandardInput();
