# The texts by which a build of the library identifies itself.

set(TAL_WEB_SITE "https://example.org/tal" CACHE STRING "The maker's web site")
set(TAL_LEGAL_NOTICE "Copyright the TalAttributeSchemaReader authors"
    CACHE STRING "The maker's legal notice")
cmake_host_system_information(RESULT TAL_HOST_NAME QUERY HOSTNAME)
set(TAL_BUILD_MACHINE "${TAL_HOST_NAME}" CACHE STRING "The machine that builds")
set(TAL_REVISION "" CACHE STRING "Source revision, eleven hexadecimal digits; empty asks git at every build")

# Two builds at the time that SOURCE_DATE_EPOCH says are the same, wherever their folders are.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  add_compile_options(
    "$<$<CXX_COMPILER_ID:GNU,Clang>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=source;-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>"
  )
endif()

set(TAL_IDENTIFICATION_FOLDER ${PROJECT_BINARY_DIR}/identification)

# Writes BuildIdentification.h, and with every build BuildRevision.h, for `target`.
function(tal_identify target)
  set(folder ${TAL_IDENTIFICATION_FOLDER})
  configure_file(module/BuildIdentification.h.in ${folder}/BuildIdentification.h @ONLY)
  add_custom_target(
    tal_build_revision
    COMMAND ${CMAKE_COMMAND} -DSOURCE_DIR=${PROJECT_SOURCE_DIR} -DREVISION=${TAL_REVISION}
            -DOUTPUT=${folder}/BuildRevision.h -P ${PROJECT_SOURCE_DIR}/cmake/WriteBuildRevision.cmake
    BYPRODUCTS ${folder}/BuildRevision.h
    VERBATIM)
  add_dependencies(${target} tal_build_revision)
  target_include_directories(${target} PRIVATE ${folder})
endfunction()
