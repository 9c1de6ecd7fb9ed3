# Installs the library with its headers, its licence, its CMake package, its pkg-config file and its
# debugger printers. What runs programs is the component `runtime`, the rest `development`.

include(CMakePackageConfigHelpers)

set(OX_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/ox_utilities")

install(
  TARGETS ox_utilities
  EXPORT ox_utilities_targets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
  INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(
  EXPORT ox_utilities_targets
  NAMESPACE ox_utilities::
  DESTINATION "${OX_PACKAGE_DIR}"
  COMPONENT development
  FILE ox_utilities-targets.cmake)

get_property(public_headers GLOBAL PROPERTY OX_PUBLIC_HEADERS)
foreach(header IN LISTS public_headers ITEMS ox/ox_utilities.h ox/ox_functions.h)
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES "${PROJECT_SOURCE_DIR}/${header}"
          DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${folder}"
          COMPONENT development)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}"
        COMPONENT runtime)

configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/ox_utilities-config.cmake.in"
  "${PROJECT_BINARY_DIR}/ox_utilities-config.cmake" INSTALL_DESTINATION "${OX_PACKAGE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ox_utilities-config-version.cmake"
                                 COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/ox_utilities-config.cmake"
              "${PROJECT_BINARY_DIR}/ox_utilities-config-version.cmake"
              "${CMAKE_CURRENT_LIST_DIR}/FindPolyclipping.cmake"
        DESTINATION "${OX_PACKAGE_DIR}"
        COMPONENT development)

# The pkg-config file knows its prefix from where it lies, so the installed tree can be moved, unless
# the libraries were told to lie elsewhere.
set(OX_PC_LIBDIR "${CMAKE_INSTALL_FULL_LIBDIR}")
set(OX_PC_INCLUDEDIR "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
set(OX_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(OX_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
  file(RELATIVE_PATH way_up "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
  string(REGEX REPLACE "/$" "" way_up "${way_up}")
  set(OX_PC_PREFIX "\${pcfiledir}/${way_up}")
endif()
if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(OX_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
set(OX_PC_DEFINITIONS "")
set(OX_PC_LIBRARIES "")
if(OX_LIBRARY_TYPE STREQUAL STATIC)
  set(OX_PC_DEFINITIONS "-DOX_STATIC")
  set(OX_PC_LIBRARIES "-lpolyclipping -lGLU -lGL ${OpenMP_CXX_FLAGS}")
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/ox_utilities.pc.in"
               "${PROJECT_BINARY_DIR}/ox_utilities.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/ox_utilities.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
        COMPONENT development)

# GDB loads the printers with the library where they lie below a folder that it trusts, /usr/share.
set(OX_DEBUGGERS_DIR "${PROJECT_SOURCE_DIR}/packaging/debuggers")
if(OX_LIBRARY_TYPE STREQUAL SHARED AND UNIX AND NOT APPLE)
  install(FILES "${OX_DEBUGGERS_DIR}/ox_utilities-gdb.py"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/gdb/auto-load${CMAKE_INSTALL_FULL_LIBDIR}"
          RENAME "libox_utilities.so.${PROJECT_VERSION}-gdb.py"
          COMPONENT development)
endif()
install(FILES "${OX_DEBUGGERS_DIR}/ox_utilities-gdb.py" "${OX_DEBUGGERS_DIR}/ox_utilities.natvis"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/ox_utilities"
        COMPONENT development)
