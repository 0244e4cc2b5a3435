// What happens when the module or a thread of the process comes and goes.
#pragma once

/// The reasons, with the values that the operating system gives them.
enum class EntryReason
{
    ProcessDetach = 0,
    ProcessAttach = 1,
    ThreadAttach = 2,
    ThreadDetach = 3
};

/// Pins the module on every attach. Warns on a process detach with a null `reserved`: the module is then
/// unloaded while the process goes on. Always returns 1 (true).
int TalAttributeSchemaReaderEntry(void* module, EntryReason reason, void* reserved);
