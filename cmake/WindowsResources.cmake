# What a DLL or a program for Windows carries beside its code. Elsewhere these functions do nothing.

if(WIN32)
  enable_language(RC)
endif()
set(tal_resource_templates ${CMAKE_CURRENT_LIST_DIR})

# The texts by which a build identifies itself, for the system's own dialogs and for installers.
function(tal_add_version_resource target)
  if(NOT WIN32)
    return()
  endif()
  get_target_property(type ${target} TYPE)
  if(type STREQUAL EXECUTABLE)
    set(TAL_FILE_TYPE VFT_APP)
    set(TAL_FILE_KIND "Program")
    set(TAL_FILE_NAME ${target}.exe)
  else()
    set(TAL_FILE_TYPE VFT_DLL)
    set(TAL_FILE_KIND "Dynamic linked library")
    set(TAL_FILE_NAME ${target}.dll)
  endif()
  set(TAL_TARGET ${target})
  configure_file(${tal_resource_templates}/Version.rc.in ${target}-version.rc @ONLY)
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}-version.rc)
  target_sources(${target} PRIVATE ${resource})
  # The revision is known only when the build runs.
  set_source_files_properties(
    ${resource} PROPERTIES INCLUDE_DIRECTORIES ${TAL_IDENTIFICATION_FOLDER} OBJECT_DEPENDS
                           ${TAL_IDENTIFICATION_FOLDER}/BuildRevision.h)
  add_dependencies(${target} tal_build_revision)
endfunction()

# The program runs with this ANSI code page, whatever the system's: "UTF-8" or that of a locale, such as "ja-JP".
function(tal_set_code_page target code_page)
  if(NOT WIN32)
    return()
  endif()
  set(TAL_CODE_PAGE ${code_page})
  configure_file(${tal_resource_templates}/Program.manifest.in ${target}.manifest @ONLY)
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${target}-manifest.rc "1 24 \"${target}.manifest\"\n")
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}-manifest.rc)
  target_link_options(${target} PRIVATE $<$<CXX_COMPILER_ID:MSVC>:/MANIFEST:NO>)
endfunction()
