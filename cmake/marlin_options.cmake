# SPDX-License-Identifier: MIT
# The options that every target of the project is compiled with.

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

find_program(MARLIN_CCACHE ccache)
if(MARLIN_CCACHE AND PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${MARLIN_CCACHE})
endif()

function(marlin_target_options target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2
    -Wundef -Wunused
    # The same results on processors with fused multiply-add as on those without.
    -ffp-contract=off
    # Symbols that the loader keeps unique would keep the library loaded after `dlclose`.
    $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>
    # g++ 12 finds null pointers in the standard library's own streams.
    $<$<CXX_COMPILER_ID:Clang>:-Wnull-dereference>
    # Text styles have a virtual operation and no virtual destructor; lists hold them by value.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-delete-non-abstract-non-virtual-dtor>
    # g++ 12 takes the joining of short strings for an overlapping copy.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
  if(MARLIN_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${MARLIN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(${target} PRIVATE -fsanitize=${MARLIN_SANITIZE})
  endif()
  if(MARLIN_BUILD_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
