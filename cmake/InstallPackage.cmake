# Installed libraries and headers, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)

# The libraries are a component, and everything else here is one.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME tal_development)

# The reader's libraries, and the component "Host" on top of them.
install(
  TARGETS CAESchemaSCM TalAttributeSchemaReader
  EXPORT TalAttributeSchemaReaderTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tal_libraries
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT tal_libraries NAMELINK_COMPONENT tal_development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(
  TARGETS TalAttributeSchemaHost
  EXPORT TalAttributeSchemaHostTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tal_libraries
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT tal_libraries NAMELINK_COMPONENT tal_development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})

# What a host can use: the model, the exported functions and the exported builders.
install(FILES TalAttributeSchemaReader/TalAttributeSchemaReader.h TalAttributeSchemaReader/TalAttributeBuilders.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaReader)
install(FILES TalAttributeSchemaReader/module/Exports.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaReader/module)
install(FILES TalAttributeSchemaReader/format/FolderDepth.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaReader/format)
foreach(folder builders/attributes builders/entities)
  install(
    DIRECTORY TalAttributeSchemaReader/${folder}/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaReader/${folder}
    FILES_MATCHING
    PATTERN "CTalAttribute*.h")
endforeach()
install(
  DIRECTORY TalAttributeSchemaReader/model/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaReader/model
  FILES_MATCHING
  PATTERN "*.h"
  PATTERN "NarrowText.h" EXCLUDE
  PATTERN "Utf16.h" EXCLUDE)
install(DIRECTORY ${PROJECT_BINARY_DIR}/TalAttributeSchemaReader/include/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# Of the host library, what its umbrella includes.
foreach(
  header
  TalAttributeSchemaHost.h
  HostExport.h
  check/Check.h
  check/FixText.h
  file/FixDocument.h
  file/Load.h
  file/Save.h
  file/XmlSession.h
  findings/Finding.h
  findings/FindingExplanations.h
  findings/FindingRules.h
  scan/Range.h
  text/NearNames.h
  text/Utf8.h)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES TalAttributeSchemaHost/${header}
          DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaHost/${folder})
endforeach()

# Hosts need the XML library that this copy is built with: the same minor version, which its names carry.
string(REGEX MATCH "^([0-9]+)\\.([0-9]+)" TAL_XML_SERIES "${XercesC_VERSION}")
math(EXPR next_minor "${CMAKE_MATCH_2} + 1")
set(TAL_XML_NEXT_SERIES ${CMAKE_MATCH_1}.${next_minor})
get_target_property(TAL_XML_PREFIX XercesC::XercesC INTERFACE_INCLUDE_DIRECTORIES)
get_filename_component(TAL_XML_PREFIX "${TAL_XML_PREFIX}" DIRECTORY)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TalAttributeSchemaReader)
foreach(library Reader Host)
  install(
    EXPORT TalAttributeSchema${library}Targets
    NAMESPACE Tal::
    DESTINATION ${package_dir})
endforeach()
configure_package_config_file(cmake/TalAttributeSchemaReaderConfig.cmake.in TalAttributeSchemaReaderConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(TalAttributeSchemaReaderConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TalAttributeSchemaReaderConfig.cmake
              ${PROJECT_BINARY_DIR}/TalAttributeSchemaReaderConfigVersion.cmake DESTINATION ${package_dir})

set(TAL_PRIVATE_LIBRARIES)
if(CMAKE_DL_LIBS)
  set(TAL_PRIVATE_LIBRARIES -l${CMAKE_DL_LIBS})
endif()
set(TAL_DEFINITIONS)
if(TAL_LIBRARY_TYPE STREQUAL STATIC)
  set(TAL_DEFINITIONS " -DTAL_STATIC")
endif()
# The pkg-config files find everything from where they stand, wherever the tree is installed or moved to.
file(RELATIVE_PATH TAL_INCLUDES_FROM_PKGCONFIG ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
     ${CMAKE_INSTALL_FULL_INCLUDEDIR})
foreach(library Reader Host)
  configure_file(cmake/TalAttributeSchema${library}.pc.in TalAttributeSchema${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/TalAttributeSchema${library}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
