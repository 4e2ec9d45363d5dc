# What nearly every source reads of the standard library.
set(rf_standard_headers <algorithm> <array> <chrono> <cstdint> <functional> <map> <memory> <optional> <span> <string>
  <utility> <variant> <vector>)

# A library for one layer: the sources of one or more folders below src/, and the layers that it may see. What a layer
# does not list it does not link. EXCEPT leaves out the sources that match. PRECOMPILE names headers that most of the
# layer's sources include, which are compiled once for it, beside those of the standard library.
function(rf_layer name)
  cmake_parse_arguments(ARG "" "EXCEPT" "FOLDERS;DEPENDS;LIBRARIES;PRECOMPILE" ${ARGN})
  if(NOT ARG_FOLDERS)
    set(ARG_FOLDERS ${name})
  endif()
  set(sources)
  foreach(folder IN LISTS ARG_FOLDERS)
    file(GLOB found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  # The entry points belong to the programs.
  list(FILTER sources EXCLUDE REGEX "/entry\\.cpp$")
  if(ARG_EXCEPT)
    list(FILTER sources EXCLUDE REGEX "${ARG_EXCEPT}")
  endif()
  add_library(rf_${name} STATIC ${sources})
  target_include_directories(rf_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
  list(TRANSFORM ARG_DEPENDS PREPEND rf_)
  target_link_libraries(rf_${name} PUBLIC ${ARG_DEPENDS} ${ARG_LIBRARIES})
  if(RF_PRECOMPILE)
    if(ARG_PRECOMPILE OR name STREQUAL "basic")
      target_precompile_headers(rf_${name} PRIVATE ${rf_standard_headers} ${ARG_PRECOMPILE})
    else()
      target_precompile_headers(rf_${name} REUSE_FROM rf_basic)
    endif()
  endif()
endfunction()
