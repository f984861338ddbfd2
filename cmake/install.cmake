# The installation: libraries in components of the CMake package, and pkg-config files.
include(CMakePackageConfigHelpers)
set(ansatz_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ansatz)

# While the major version is 0, a change of the minor one may break a caller.
set(ansatz_soversion ${PROJECT_VERSION_MAJOR})
if(PROJECT_VERSION_MAJOR EQUAL 0)
  string(APPEND ansatz_soversion .${PROJECT_VERSION_MINOR})
endif()

# ansatz_install(COMPONENT TARGET...): installs libraries as targets ansatz::... of a component.
function(ansatz_install component)
  install(TARGETS ${ARGN} EXPORT ansatz-${component}-targets)
  install(EXPORT ansatz-${component}-targets NAMESPACE ansatz:: DESTINATION ${ansatz_package_dir})
endfunction()

# ansatz_install_pkgconfig(NAME): installs NAME.pc, made from cmake/NAME.pc.in.
file(RELATIVE_PATH up_from_pkgconfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /) # the installation may be moved
function(ansatz_install_pkgconfig name)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

configure_package_config_file(cmake/ansatz-config.cmake.in ansatz-config.cmake INSTALL_DESTINATION ${ansatz_package_dir})
write_basic_package_version_file(ansatz-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ansatz-config.cmake ${PROJECT_BINARY_DIR}/ansatz-config-version.cmake
        DESTINATION ${ansatz_package_dir})
