// The entry routine's callers on POSIX.
#include "TalAttributeSchemaReader/module/EntryRoutine.h"
#include "TalAttributeSchemaReader/module/Exports.h"
#include "TalAttributeSchemaReader/platform/ModulePinning.h"

namespace {

// The system does not say why a module leaves, but a pinned one leaves only with its process.
bool leavesWithProcess = false;

__attribute__((constructor)) void Attach()
{
    TalAttributeSchemaReaderEntry(nullptr, EntryReason::ProcessAttach, nullptr);
    leavesWithProcess =
        PinModule(reinterpret_cast<const void*>(&__localFnToKeepTalAttributeSchemaReaderDllLoaded));
}

__attribute__((destructor)) void Detach()
{
    TalAttributeSchemaReaderEntry(nullptr, EntryReason::ProcessDetach,
                                  leavesWithProcess ? &leavesWithProcess : nullptr);
}

} // namespace
