// What the tests need of the operating system.
#pragma once

#include <cstdlib>
#include <string>

#ifdef _WIN32
#include <windows.h>

constexpr char kNullDevice[] = "nul";
constexpr bool kHasLinks = false; // to make one takes a right that few have
/// A file name may have any of these characters.
constexpr char kOddCharacters[] = "50%20#1; \xE9\xA2\xA8\xE8\xBB\x8A \xF0\x9F\x8C\x80";

using LoadedModule = HMODULE;

inline LoadedModule LoadModule(const char* path)
{
    return LoadLibraryA(path);
}

inline void UnloadModule(LoadedModule module)
{
    FreeLibrary(module);
}

inline bool IsModuleLoaded(const char* path)
{
    return GetModuleHandleA(path) != nullptr;
}

template <class Function>
Function* ModuleFunction(LoadedModule module, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

/// An empty value removes the variable.
inline void SetEnvironment(const std::string& name, const std::string& value)
{
    _putenv_s(name.c_str(), value.c_str());
}
#else
#include <dlfcn.h>

constexpr char kNullDevice[] = "/dev/null";
constexpr bool kHasLinks = true;
/// A file name may have any of these characters, also those that are no UTF-8.
constexpr char kOddCharacters[] = "50%20#1?; \xE9\xA2\xA8\xE8\xBB\x8A \xF0\x9F\x8C\x80 \xFF";

using LoadedModule = void*;

inline LoadedModule LoadModule(const char* path)
{
    return dlopen(path, RTLD_NOW | RTLD_LOCAL);
}

inline void UnloadModule(LoadedModule module)
{
    dlclose(module);
}

inline bool IsModuleLoaded(const char* path)
{
    void* const module = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
    if (module)
        dlclose(module);
    return module != nullptr;
}

template <class Function>
Function* ModuleFunction(LoadedModule module, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(module, name));
}

/// An empty value removes the variable.
inline void SetEnvironment(const std::string& name, const std::string& value)
{
    value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
}
#endif
