# The texts by which a build of the library identifies itself.

set(TAL_WEB_SITE "https://example.org/tal" CACHE STRING "The maker's web site")
set(TAL_LEGAL_NOTICE "Copyright the TalAttributeSchemaReader authors"
    CACHE STRING "The maker's legal notice")
cmake_host_system_information(RESULT TAL_HOST_NAME QUERY HOSTNAME)
set(TAL_BUILD_MACHINE "${TAL_HOST_NAME}" CACHE STRING "The machine that builds")

set(TAL_REVISION "" CACHE STRING "Source revision, eleven hexadecimal digits; empty asks git")
set(revision "${TAL_REVISION}")
if(NOT revision)
  find_package(Git QUIET)
  if(GIT_FOUND)
    execute_process(
      COMMAND ${GIT_EXECUTABLE} rev-parse HEAD
      WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
      OUTPUT_VARIABLE revision
      ERROR_QUIET)
  endif()
endif()
if(NOT revision MATCHES "^[0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f]")
  set(revision "00000000000")
endif()
string(SUBSTRING "${revision}" 0 11 revision)
set(TAL_MODULE_VERSION "${PROJECT_VERSION}.${revision}")
