// Loaded into a process with LD_PRELOAD: makes one of its calls to the system fail, or sends it a signal at
// that moment. The environment says which: FAULT_CALL counts from 1; FAULT_ERRNO or FAULT_SIGNAL says what
// happens, SIGSTOP at all later calls, too; the name of the call is written to the file FAULT_REPORT. With
// FAULT_NO_TMPFILE no file can be opened without a name.
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

template <typename Function>
Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int Number(const char* variable)
{
    const char* const text = std::getenv(variable);
    return text ? std::atoi(text) : 0;
}

void Report(const char* name)
{
    const int file =
        Real<decltype(openat)>("openat")(AT_FDCWD, std::getenv("FAULT_REPORT"), O_WRONLY | O_CREAT, 0600);
    if (Real<decltype(write)>("write")(file, name, std::strlen(name)) < 0)
        std::abort();
    Real<decltype(close)>("close")(file);
}

/// True when this call is to fail.
bool IsChosen(const char* name)
{
    static int calls = 0;
    const int chosen = Number("FAULT_CALL");
    const int signal = Number("FAULT_SIGNAL");
    ++calls;
    if (calls == chosen)
        Report(name);
    if (calls == chosen || (calls > chosen && signal == SIGSTOP))
        std::raise(signal);
    if (calls != chosen || signal)
        return false;
    errno = Number("FAULT_ERRNO");
    return true;
}

} // namespace

// By their names in the library only, so that no declaration of the system's headers is in the way.
#define MAY_FAIL(type, failure, name, parameters, arguments)                                                 \
    extern "C" type Failing_##name parameters __asm__(#name);                                                \
    extern "C" type Failing_##name parameters                                                                \
    {                                                                                                        \
        return IsChosen(#name) ? failure : Real<type parameters>(#name) arguments;                           \
    }

MAY_FAIL(int, -1, stat, (const char* path, struct stat* status), (path, status))
MAY_FAIL(int, -1, lstat, (const char* path, struct stat* status), (path, status))
MAY_FAIL(int, -1, fstat, (int file, struct stat* status), (file, status))
MAY_FAIL(int, -1, faccessat, (int folder, const char* path, int mode, int flags), (folder, path, mode, flags))
MAY_FAIL(ssize_t, -1, readlink, (const char* path, char* target, size_t size), (path, target, size))
MAY_FAIL(char*, nullptr, getcwd, (char* path, size_t size), (path, size))
MAY_FAIL(void*, nullptr, fopen64, (const char* path, const char* mode), (path, mode))
MAY_FAIL(ssize_t, -1, read, (int file, void* bytes, size_t count), (file, bytes, count))
MAY_FAIL(ssize_t, -1, pread, (int file, void* bytes, size_t count, off_t offset),
         (file, bytes, count, offset))
MAY_FAIL(ssize_t, -1, write, (int file, const void* bytes, size_t count), (file, bytes, count))
MAY_FAIL(int, -1, fchown, (int file, uid_t owner, gid_t group), (file, owner, group))
MAY_FAIL(int, -1, fchmod, (int file, mode_t mode), (file, mode))
MAY_FAIL(ssize_t, -1, lgetxattr, (const char* path, const char* name, void* value, size_t size),
         (path, name, value, size))
MAY_FAIL(int, -1, fsetxattr, (int file, const char* name, const void* value, size_t size, int flags),
         (file, name, value, size, flags))
MAY_FAIL(int, -1, fremovexattr, (int file, const char* name), (file, name))
MAY_FAIL(int, -1, fsync, (int file), (file))
MAY_FAIL(int, -1, mkdir, (const char* path, mode_t mode), (path, mode))
MAY_FAIL(int, -1, rmdir, (const char* path), (path))
MAY_FAIL(int, -1, linkat, (int folder, const char* path, int newFolder, const char* newPath, int flags),
         (folder, path, newFolder, newPath, flags))
MAY_FAIL(int, -1, renameat, (int folder, const char* path, int newFolder, const char* newPath),
         (folder, path, newFolder, newPath))
MAY_FAIL(int, -1, unlinkat, (int folder, const char* path, int flags), (folder, path, flags))
MAY_FAIL(int, -1, close, (int file), (file))

extern "C" int openat(int folder, const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    if (IsChosen("open"))
        return -1;
    if ((flags & O_TMPFILE) == O_TMPFILE && std::getenv("FAULT_NO_TMPFILE")) {
        errno = EOPNOTSUPP;
        return -1;
    }
    return Real<decltype(openat)>("openat")(folder, path, flags, mode);
}

extern "C" int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openat(AT_FDCWD, path, flags, mode);
}
