// Keeps a loaded module in the process: POSIX.
#include "TalAttributeSchemaReader/platform/ModulePinning.h"

#include <dlfcn.h>

bool PinModule(const void* address)
{
    Dl_info module;
    if (!dladdr(address, &module))
        return false;
    // The handle is dropped on purpose: nobody is to close it.
    return dlopen(module.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE) != nullptr;
}
