// What makes a finding the same one after lines have moved.
#pragma once

#include <map>
#include <string>

#include "TalAttributeSchemaHost/findings/Finding.h"

/// The names in a path or an identity, without what tells siblings apart.
std::string PathOfNames(const std::string& path);

/// Names findings of one document by identifier, identity of the element, and subject; of several with the
/// same, by their order, too. Findings have to come in their order.
class Fingerprints
{
public:
    std::string Next(const tal::Finding& finding);

private:
    std::map<std::string, int> m_counts;
};
