# SPDX-License-Identifier: MIT
# The public headers, relative to src/marlin/: all but those in a detail/ folder.

function(marlin_public_headers result)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/src/marlin
    ${PROJECT_SOURCE_DIR}/src/marlin/*.h)
  list(FILTER headers EXCLUDE REGEX "(^|/)detail/")
  set(${result} ${headers} PARENT_SCOPE)
endfunction()

# Compiles every public header alone, in a source file that holds nothing else.
function(marlin_check_headers target)
  marlin_public_headers(headers)
  set(sources "")
  foreach(header IN LISTS headers)
    if(header MATCHES "^qt/" AND NOT TARGET marlinshared_qt)
      continue()
    endif()
    string(REGEX REPLACE "[/.]" "_" name ${header})
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "#include <marlin/${header}>\n")
    list(APPEND sources ${source})
  endforeach()
  add_library(${target} OBJECT ${sources})
  marlin_target_options(${target})
  target_link_libraries(${target} PRIVATE Marlin::Shared $<TARGET_NAME_IF_EXISTS:marlinshared_qt>)
endfunction()
