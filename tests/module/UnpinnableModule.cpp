// The system of the module `unpinnable_module`, which has the library's entry routine and little else: it
// refuses to pin.
#include "TalAttributeSchemaReader/module/Exports.h"
#include "TalAttributeSchemaReader/platform/ModulePinning.h"

bool PinModule(const void*)
{
    return false;
}

void __localFnToKeepTalAttributeSchemaReaderDllLoaded() {}
