# Installs the library with its CMake package and its pkg-config file.

include(CMakePackageConfigHelpers)

set(OX_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/ox_utilities")

install(
  TARGETS ox_utilities
  EXPORT ox_utilities_targets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(
  EXPORT ox_utilities_targets
  NAMESPACE ox_utilities::
  DESTINATION "${OX_PACKAGE_DIR}"
  FILE ox_utilities-targets.cmake)

configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/ox_utilities-config.cmake.in"
  "${PROJECT_BINARY_DIR}/ox_utilities-config.cmake" INSTALL_DESTINATION "${OX_PACKAGE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ox_utilities-config-version.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/ox_utilities-config.cmake"
              "${PROJECT_BINARY_DIR}/ox_utilities-config-version.cmake"
        DESTINATION "${OX_PACKAGE_DIR}")

configure_file("${CMAKE_CURRENT_LIST_DIR}/ox_utilities.pc.in"
               "${PROJECT_BINARY_DIR}/ox_utilities.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/ox_utilities.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
