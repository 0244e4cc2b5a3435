#include "TalAttributeSchemaReader/platform/TalGenUtil.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>

#include "TalAttributeSchemaReader/model/genutl/GuConversionAllocator.h"

bool TalGenIsDLLUnloadWarningEnabled()
{
    const char* setting = std::getenv("TAL_DLL_UNLOAD_WARNING");
    return setting && *setting && std::string(setting) != "0";
}

void TalGenWriteConsoleMessage(_TalGenMessageType, const wchar_t* format, ...)
{
    // The C library's %s is wide text on one system and narrow text on another; %ls is wide on all.
    std::wstring portableFormat = format;
    for (std::size_t i = 0;
         (i = portableFormat.find(L'%', i)) != std::wstring::npos && ++i < portableFormat.size(); ++i) {
        if (portableFormat[i] == L's')
            portableFormat.insert(i++, L"l");
    }

    wchar_t line[1024] = {};
    std::va_list arguments;
    va_start(arguments, format);
    std::vswprintf(line, sizeof line / sizeof *line, portableFormat.c_str(), arguments);
    va_end(arguments);
    line[sizeof line / sizeof *line - 1] = L'\0';

    GuConversionAllocator allocator;
    std::fprintf(stderr, "%s\n", allocator.UnicodeToAnsi(line));
}
