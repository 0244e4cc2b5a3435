# Installed libraries and headers, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)

install(
  TARGETS CAESchemaSCM TalAttributeSchemaReader
  EXPORT TalAttributeSchemaReaderTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})

# What a host can use: the model, the exported functions and the exported builders.
install(FILES TalAttributeSchemaReader/TalAttributeSchemaReader.h TalAttributeSchemaReader/TalAttributeBuilders.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaReader)
install(FILES TalAttributeSchemaReader/module/Exports.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TalAttributeSchemaReader/module)
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
  PATTERN "NarrowText.h" EXCLUDE)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TalAttributeSchemaReader)
install(
  EXPORT TalAttributeSchemaReaderTargets
  NAMESPACE Tal::
  DESTINATION ${package_dir})
configure_package_config_file(cmake/TalAttributeSchemaReaderConfig.cmake.in TalAttributeSchemaReaderConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(TalAttributeSchemaReaderConfigVersion.cmake COMPATIBILITY SameMajorVersion)
# The pkg-config file finds everything from where it stands, wherever the tree is installed or moved to.
file(RELATIVE_PATH TAL_INCLUDES_FROM_PKGCONFIG ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
     ${CMAKE_INSTALL_FULL_INCLUDEDIR})
configure_file(cmake/TalAttributeSchemaReader.pc.in TalAttributeSchemaReader.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/TalAttributeSchemaReaderConfig.cmake
              ${PROJECT_BINARY_DIR}/TalAttributeSchemaReaderConfigVersion.cmake DESTINATION ${package_dir})
install(FILES ${PROJECT_BINARY_DIR}/TalAttributeSchemaReader.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
