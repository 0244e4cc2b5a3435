// The entry routine's callers on POSIX.
#include <cstdint>
#include <cstring>

#include <dlfcn.h>
#include <unwind.h>

#include "TalAttributeSchemaReader/module/EntryRoutine.h"
#include "TalAttributeSchemaReader/module/Exports.h"
#include "TalAttributeSchemaReader/platform/ModulePinning.h"

namespace {

// A pinned module leaves only with its process.
bool isPinned = false;

_Unwind_Reason_Code LookForExit(_Unwind_Context* frame, void* found)
{
    // What a function that never returns goes back to may be behind its end.
    const auto address = static_cast<std::uintptr_t>(_Unwind_GetIP(frame)) - 1;
    Dl_info caller;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the unwinder has addresses as numbers only
    if (dladdr(reinterpret_cast<const void*>(address), &caller) == 0 || !caller.dli_sname ||
        std::strcmp(caller.dli_sname, "exit") != 0)
        return _URC_NO_REASON;
    *static_cast<bool*>(found) = true;
    return _URC_END_OF_STACK;
}

/// The system does not say why it calls a destructor, but its callers tell.
bool IsProcessEnding()
{
    bool calledByExit = false;
    _Unwind_Backtrace(LookForExit, &calledByExit);
    return calledByExit;
}

__attribute__((constructor)) void Attach()
{
    TalAttributeSchemaReaderEntry(nullptr, EntryReason::ProcessAttach, nullptr);
    isPinned = PinModule(reinterpret_cast<const void*>(&__localFnToKeepTalAttributeSchemaReaderDllLoaded));
}

__attribute__((destructor)) void Detach()
{
    const bool leavesWithProcess = isPinned || IsProcessEnding();
    TalAttributeSchemaReaderEntry(nullptr, EntryReason::ProcessDetach,
                                  leavesWithProcess ? &isPinned : nullptr);
}

} // namespace
