// What the comments of a document do to its findings.
#pragma once

#include <list>
#include <string>
#include <vector>

#include "TalAttributeSchemaHost/check/CheckScan.h"
#include "TalAttributeSchemaHost/check/PlacedFindings.h"

namespace tal {

/// Takes the findings that the comments ask for out of `findings` into `result`, and reports comments that
/// ask in vain. `places` stands behind those of the findings; these call the document `name`. `causes` is as
/// for `Suppress`.
void ApplySuppressions(std::vector<Suppression>& suppressions, PlaceList& places, const std::string& name,
                       const CheckOptions& options, std::list<Finding>& findings, Causes& causes,
                       CheckResult& result);

} // namespace tal
