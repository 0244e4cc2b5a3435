// Findings for programs.
#pragma once

#include <string>
#include <vector>

#include "tools/talschema/check/FindingText.h"

std::string FindingsAsJson(const std::vector<CheckedFile>& files, const FindingStyle& style);
