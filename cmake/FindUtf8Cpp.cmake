# Finds the headers that check and convert UTF-8 (Debian: libutfcpp-dev), version 3.2 or any later
# one, and defines Utf8Cpp::Utf8Cpp. Its own package file is not asked: it refuses a later major
# version, and Debian 12 keeps it where a build for another architecture does not look.

find_path(Utf8Cpp_INCLUDE_DIR NAMES utf8/cpp17.h PATH_SUFFIXES utf8cpp)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Utf8Cpp REQUIRED_VARS Utf8Cpp_INCLUDE_DIR)

if(Utf8Cpp_FOUND AND NOT TARGET Utf8Cpp::Utf8Cpp)
  add_library(Utf8Cpp::Utf8Cpp INTERFACE IMPORTED)
  target_include_directories(Utf8Cpp::Utf8Cpp INTERFACE "${Utf8Cpp_INCLUDE_DIR}")
endif()
mark_as_advanced(Utf8Cpp_INCLUDE_DIR)
