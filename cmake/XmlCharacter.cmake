# TAL_XML_CHARACTER: the type that the XML library that was found takes for the units of its text.

include(CheckCXXSourceCompiles)

function(find_xml_character)
  set(CMAKE_REQUIRED_LIBRARIES XercesC::XercesC)
  foreach(type char16_t wchar_t)
    check_cxx_source_compiles(
      "#include <type_traits>
      #include <xercesc/util/XercesDefs.hpp>
      static_assert(std::is_same<XMLCh, ${type}>::value, \"\");
      int main() {}"
      TAL_XML_CHARACTER_IS_${type})
    if(TAL_XML_CHARACTER_IS_${type})
      set(TAL_XML_CHARACTER ${type} PARENT_SCOPE)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "XMLCh of the XML library is neither char16_t nor wchar_t")
endfunction()
find_xml_character()
