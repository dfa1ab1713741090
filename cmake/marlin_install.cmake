# SPDX-License-Identifier: MIT
# Installs the library, and what hosts find it by: the CMake package and the pkg-config files.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/MarlinShared)

install(TARGETS marlinshared EXPORT MarlinShared
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT MarlinShared NAMESPACE Marlin:: FILE MarlinSharedTargets.cmake
  DESTINATION ${package_dir})

# Installs public headers under include/marlin/, in the folders that they have in src/marlin/.
function(marlin_install_headers)
  foreach(header IN LISTS ARGN)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/src/marlin/${header}
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/marlin/${folder})
  endforeach()
endfunction()

marlin_public_headers(headers)
set(qt_headers ${headers})
list(FILTER headers EXCLUDE REGEX "^qt/")
list(FILTER qt_headers INCLUDE REGEX "^qt/")
marlin_install_headers(${headers})

# The window system of Qt is a part of its own, so that the core needs no Qt.
if(TARGET marlinshared_qt)
  install(TARGETS marlinshared_qt EXPORT MarlinSharedQt
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT MarlinSharedQt NAMESPACE Marlin:: FILE MarlinSharedQtTargets.cmake
    DESTINATION ${package_dir})
  marlin_install_headers(${qt_headers})
endif()

configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/MarlinSharedConfig.cmake.in
  ${PROJECT_BINARY_DIR}/MarlinSharedConfig.cmake
  INSTALL_DESTINATION ${package_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/MarlinSharedConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/MarlinSharedConfig.cmake
  ${PROJECT_BINARY_DIR}/MarlinSharedConfigVersion.cmake
  DESTINATION ${package_dir})

# Folders below the prefix are named from the .pc file's own place, so the prefix can be moved.
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  set(pc_prefix ${CMAKE_INSTALL_PREFIX})
  set(pc_libdir ${CMAKE_INSTALL_LIBDIR})
else()
  file(RELATIVE_PATH pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" pc_prefix "\${pcfiledir}/${pc_prefix}")
  set(pc_libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(IS_ABSOLUTE ${CMAKE_INSTALL_INCLUDEDIR})
  set(pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
else()
  set(pc_includedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/marlinshared.pc.in
  ${PROJECT_BINARY_DIR}/marlinshared.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/marlinshared.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(TARGET marlinshared_qt)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/marlinshared_qt.pc.in
    ${PROJECT_BINARY_DIR}/marlinshared_qt.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/marlinshared_qt.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/share/marlin/ DESTINATION ${CMAKE_INSTALL_DATADIR}/marlin)
install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/marlinshared)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/marlinshared
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")
