# Run by every build: writes what changes from build to build in the texts by which the library identifies itself. The
# file is touched only when they change. Arguments: SOURCE_DIR, REVISION (empty asks git), OUTPUT.

# Only of this repository: a copy inside a host's repository is not what the host's commit says.
set(revision "${REVISION}")
if(NOT revision)
  find_package(Git QUIET)
  if(GIT_FOUND)
    execute_process(
      COMMAND ${GIT_EXECUTABLE} -C ${SOURCE_DIR} rev-parse --show-cdup HEAD
      OUTPUT_VARIABLE answer
      ERROR_QUIET)
    if(answer MATCHES "^\n([0-9a-f]+)\n$")
      set(revision ${CMAKE_MATCH_1})
    endif()
  endif()
endif()
if(NOT revision MATCHES "^[0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f]")
  set(revision "00000000000")
endif()
string(SUBSTRING "${revision}" 0 11 revision)

# Not every compiler's macros know the variable by which reproducible builds set the time.
set(date __DATE__)
set(time __TIME__)
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  string(TIMESTAMP date "\"%b %d %Y\"" UTC)
  string(REGEX REPLACE " 0([0-9]) " "  \\1 " date "${date}") # as the macro writes it
  string(TIMESTAMP time "\"%H:%M:%S\"" UTC)
endif()

file(CONFIGURE OUTPUT ${OUTPUT} @ONLY CONTENT [[
// Made by every build.
#pragma once

#define TAL_REVISION "@revision@"
#define TAL_BUILD_DATE @date@
#define TAL_BUILD_TIME @time@
]])
