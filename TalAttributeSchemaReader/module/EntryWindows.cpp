// The entry routine's caller on Windows.
#include "TalAttributeSchemaReader/module/EntryRoutine.h"

#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved)
{
    return TalAttributeSchemaReaderEntry(module, static_cast<EntryReason>(reason), reserved);
}
