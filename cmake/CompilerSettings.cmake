# How everything is compiled.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

# Of the sources that stand twice, once for each kind of system.
if(WIN32)
  set(platform Windows)
else()
  set(platform Posix)
endif()

# Linked by every target of this project, never by a host.
add_library(tal_warnings INTERFACE)
target_compile_options(
  tal_warnings
  INTERFACE $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion>
            $<$<CXX_COMPILER_ID:MSVC>:/W4 /utf-8>)
if(TAL_WARNINGS_AS_ERRORS)
  target_compile_options(tal_warnings INTERFACE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
endif()

if(TAL_SANITIZE)
  set(sanitizers address,undefined)
  if(TAL_SANITIZE STREQUAL thread)
    set(sanitizers thread)
  endif()
  add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${sanitizers})
endif()
if(TAL_BUILD_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
