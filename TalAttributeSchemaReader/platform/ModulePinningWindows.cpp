// Keeps a loaded module in the process: Windows.
#include "TalAttributeSchemaReader/platform/ModulePinning.h"

#include <windows.h>

bool PinModule(const void* address)
{
    // The system takes a null address for the program itself.
    HMODULE module = nullptr;
    return address &&
           GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                              static_cast<LPCWSTR>(address), &module) != FALSE;
}
