# What all libraries of this project have in common.

# A host that says nothing gets shared libraries, as everybody else does.
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
  set(TAL_LIBRARY_TYPE STATIC)
else()
  set(TAL_LIBRARY_TYPE SHARED)
endif()

# `name` is the target's name behind "Tal::", in the tree and installed alike.
function(tal_library target name)
  if(TAL_LIBRARY_TYPE STREQUAL SHARED AND UNIX AND NOT APPLE)
    set(hidden ${PROJECT_SOURCE_DIR}/cmake/HideStandardLibrary.map)
    target_link_options(${target} PRIVATE LINKER:--version-script=${hidden})
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${hidden})
  endif()
  set_target_properties(
    ${target}
    PROPERTIES VERSION ${PROJECT_VERSION}
               SOVERSION ${PROJECT_VERSION_MAJOR}
               EXPORT_NAME ${name}
               INSTALL_RPATH "$ORIGIN"
               INSTALL_RPATH_USE_LINK_PATH ON)
  if(WIN32)
    set_target_properties(${target} PROPERTIES PREFIX "")
  endif()
  tal_add_version_resource(${target})
  add_library(Tal::${name} ALIAS ${target})
endfunction()
