// The application's console.
#pragma once

enum _TalGenMessageType
{
    TalGenWarningMessage
};

/// True when the environment variable `TAL_DLL_UNLOAD_WARNING` is set and neither empty nor "0".
bool TalGenIsDLLUnloadWarningEnabled();

/// Writes one line to the standard error stream. `format` is a `wprintf` format in which a bare `%s` stands
/// for a wide text; the line is cut after 1,023 characters.
void TalGenWriteConsoleMessage(_TalGenMessageType type, const wchar_t* format, ...);
