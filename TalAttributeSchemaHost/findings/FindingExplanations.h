// What findings mean, for those who meet one for the first time.
#pragma once

#include "TalAttributeSchemaHost/findings/FindingRules.h"

namespace tal {

/// All text is UTF-8.
struct FindingExplanation
{
    FindingId id;        ///< what is explained
    const char* meaning; ///< what the reader does, and what follows from that, in one or two sentences
    const char* example; ///< a document with such a finding; null where none that is short shows it
    const char* repair;  ///< what to do
};

/// Null for an identifier that nobody has explained. `id` must not be `None`.
TALHOST_API const FindingExplanation* ExplanationOf(FindingId id);

} // namespace tal
