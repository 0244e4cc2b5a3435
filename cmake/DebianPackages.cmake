# Packages for Debian: the libraries, what hosts need to build with them, and the tool. scripts/package.sh makes them.

set(TAL_PACKAGE_MAINTAINER "TalAttributeSchemaReader authors <authors@example.org>"
    CACHE STRING "Name and address in the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME talattributeschemareader)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT "${TAL_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${TAL_WEB_SITE}")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL tal_libraries tal_development tal_tool)

set(library_package libtalattributeschemareader${PROJECT_VERSION_MAJOR})
set(development_package libtalattributeschemareader-dev)
set(about
    "An attribute schema is an XML document that declares where a desktop
engineering application keeps its data, which attributes, kinds of files
and groups of attributes exist, and which types of entities have them.

")

set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_TAL_LIBRARIES_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_TAL_LIBRARIES_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_TAL_LIBRARIES_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/symbols
                                                     ${PROJECT_BINARY_DIR}/debian/triggers)
set(CPACK_DEBIAN_TAL_LIBRARIES_DESCRIPTION
    "reads and writes attribute schemas - libraries
${about}This package has the libraries: one reads a document into a model and writes
the model back, the other loads, checks and saves documents for hosts and
says what happened.")

set(CPACK_DEBIAN_TAL_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_TAL_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TAL_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), \
libxerces-c-dev (>= ${TAL_XML_SERIES}), libxerces-c-dev (<< ${TAL_XML_NEXT_SERIES})")
set(CPACK_DEBIAN_TAL_DEVELOPMENT_DESCRIPTION
    "reads and writes attribute schemas - development files
${about}This package has the headers, the CMake package and the pkg-config files that
a host needs to build with the libraries.")

set(CPACK_DEBIAN_TAL_TOOL_PACKAGE_NAME talschema)
set(CPACK_DEBIAN_TAL_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TAL_TOOL_PACKAGE_DEPENDS "${library_package} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TAL_TOOL_PACKAGE_SUGGESTS graphviz)
set(CPACK_DEBIAN_TAL_TOOL_DESCRIPTION
    "shows, checks, compares and rewrites attribute schemas
${about}This package has the command-line tool talschema. It shows a schema as it is
read, tells what a reader will skip or take for something else, with the exact
place, compares two schemas, draws what refers to what, and rewrites a
document without ever leaving half of one.")

# Debian wants manual pages and changelogs compressed, and a list of the symbols.
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(packaging/debian/changelog.in debian/changelog.Debian @ONLY)
configure_file(CHANGELOG.md debian/changelog COPYONLY)
foreach(component LIBRARIES DEVELOPMENT TOOL)
  string(TOLOWER tal_${component} name)
  install(
    FILES packaging/debian/copyright ${PROJECT_BINARY_DIR}/debian/changelog
          ${PROJECT_BINARY_DIR}/debian/changelog.Debian
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_TAL_${component}_PACKAGE_NAME}
    COMPONENT ${name})
endforeach()
configure_file(packaging/debian/Stage.cmake.in debian/Stage.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/debian/Stage.cmake)

include(CPack)
