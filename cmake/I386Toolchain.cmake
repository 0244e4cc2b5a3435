# Builds for 32-bit x86 Linux with Debian's cross compiler, against the libraries that scripts/test-i386.sh unpacks; the
# programs find them, the C library included, and run as they are.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-linux-gnu-g++)
# Without one, CMake takes the programs that are built on the way for programs of another machine.
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/env)

get_filename_component(libraries ${CMAKE_CURRENT_LIST_DIR}/../build-i386/libraries ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH ${libraries})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)

set(folders ${libraries}/usr/lib/i386-linux-gnu:${libraries}/lib/i386-linux-gnu)
# An old-style path serves the libraries of libraries, too.
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-Wl,-rpath-link,${folders}")
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--dynamic-linker,${libraries}/lib/ld-linux.so.2,--disable-new-dtags,-rpath,${folders}")
