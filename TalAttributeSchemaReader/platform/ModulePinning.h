// Keeps a loaded module in the process.
#pragma once

/// Pins the module that holds `address`: it stays loaded until the process ends, whatever a host unloads
/// later. False when the system refuses.
bool PinModule(const void* address);
