# Finds the polygon clipping library (Debian: libpolyclipping-dev) and defines
# Polyclipping::Polyclipping. Only its 6.4 releases give the exact results that the
# polygons promise. OX_POLYCLIPPING_SOURCE names a folder with its sources instead, for a C++ standard
# library that the installed one was not compiled with.

if(OX_POLYCLIPPING_SOURCE AND NOT TARGET Polyclipping::Polyclipping)
  enable_language(CXX)
  add_library(polyclipping_from_source STATIC "${OX_POLYCLIPPING_SOURCE}/cpp/clipper.cpp")
  target_include_directories(polyclipping_from_source SYSTEM
                             PUBLIC "${OX_POLYCLIPPING_SOURCE}/cpp")
  target_compile_options(polyclipping_from_source PRIVATE -w -ffp-contract=off)
  set_target_properties(polyclipping_from_source PROPERTIES POSITION_INDEPENDENT_CODE ON)
  add_library(Polyclipping::Polyclipping ALIAS polyclipping_from_source)
endif()
if(TARGET Polyclipping::Polyclipping)
  set(Polyclipping_FOUND TRUE)
  return()
endif()

find_path(Polyclipping_INCLUDE_DIR NAMES clipper.hpp PATH_SUFFIXES polyclipping)
find_library(Polyclipping_LIBRARY NAMES polyclipping)

if(Polyclipping_INCLUDE_DIR)
  file(STRINGS "${Polyclipping_INCLUDE_DIR}/clipper.hpp" version_line
       REGEX "#define CLIPPER_VERSION")
  string(REGEX MATCH "[0-9]+(\\.[0-9]+)+" Polyclipping_VERSION "${version_line}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(
  Polyclipping
  REQUIRED_VARS Polyclipping_LIBRARY Polyclipping_INCLUDE_DIR
  VERSION_VAR Polyclipping_VERSION)

if(Polyclipping_FOUND AND NOT TARGET Polyclipping::Polyclipping)
  add_library(Polyclipping::Polyclipping UNKNOWN IMPORTED)
  set_target_properties(
    Polyclipping::Polyclipping
    PROPERTIES IMPORTED_LOCATION "${Polyclipping_LIBRARY}"
               INTERFACE_INCLUDE_DIRECTORIES "${Polyclipping_INCLUDE_DIR}")
endif()
mark_as_advanced(Polyclipping_INCLUDE_DIR Polyclipping_LIBRARY)
