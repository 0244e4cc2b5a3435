# The target "docs": a site of the installed headers and the pages in docs/, in the build folder's docs/html.

find_package(Doxygen)
find_program(TAL_MANDOC mandoc)
if(NOT DOXYGEN_FOUND OR NOT TAL_MANDOC)
  return() # scripts/docs.sh installs both
endif()

set(site ${PROJECT_BINARY_DIR}/docs)
set(headers ${site}/headers/include)
configure_file(docs/Doxyfile.in ${site}/Doxyfile @ONLY)
file(WRITE ${site}/pages/talschema.md "# Manual page {#talschema}\n\n\\htmlinclude talschema.html\n")
# What is installed is what is described; the rest of the tree is nobody's interface.
add_custom_target(
  docs
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${site}/headers ${site}/html
  COMMAND ${CMAKE_COMMAND} --install ${PROJECT_BINARY_DIR} --prefix ${site}/headers --component tal_development
          > ${site}/install.log
  COMMAND ${TAL_MANDOC} -T html -O fragment ${PROJECT_SOURCE_DIR}/docs/talschema.1 > ${site}/pages/talschema.html
  COMMAND ${DOXYGEN_EXECUTABLE} ${site}/Doxyfile
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  VERBATIM)
add_dependencies(docs CAESchemaSCM TalAttributeSchemaReader TalAttributeSchemaHost)
