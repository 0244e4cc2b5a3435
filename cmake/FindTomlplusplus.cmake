# The library that reads project files: Tomlplusplus::Tomlplusplus. Its headers are all that is used.

find_path(Tomlplusplus_INCLUDE_DIR toml++/toml.h)
mark_as_advanced(Tomlplusplus_INCLUDE_DIR)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Tomlplusplus REQUIRED_VARS Tomlplusplus_INCLUDE_DIR)
if(Tomlplusplus_FOUND AND NOT TARGET Tomlplusplus::Tomlplusplus)
  add_library(Tomlplusplus::Tomlplusplus INTERFACE IMPORTED)
  set_target_properties(Tomlplusplus::Tomlplusplus PROPERTIES INTERFACE_INCLUDE_DIRECTORIES ${Tomlplusplus_INCLUDE_DIR})
endif()
