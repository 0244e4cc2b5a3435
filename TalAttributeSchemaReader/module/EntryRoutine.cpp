#include "TalAttributeSchemaReader/module/EntryRoutine.h"

#include "TalAttributeSchemaReader/module/Exports.h"
#include "TalAttributeSchemaReader/platform/ModulePinning.h"
#include "TalAttributeSchemaReader/platform/TalGenUtil.h"

int TalAttributeSchemaReaderEntry(void*, EntryReason reason, void* reserved)
{
    switch (reason) {
    case EntryReason::ProcessAttach:
    case EntryReason::ThreadAttach:
        PinModule(reinterpret_cast<const void*>(&__localFnToKeepTalAttributeSchemaReaderDllLoaded));
        break;
    case EntryReason::ProcessDetach:
        if (!reserved && TalGenIsDLLUnloadWarningEnabled())
            TalGenWriteConsoleMessage(TalGenWarningMessage,
                                      L"'%s' dll is getting unloaded with application still running!",
                                      L"TalAttributeSchemaReader");
        break;
    case EntryReason::ThreadDetach:
        break;
    }
    return 1;
}
