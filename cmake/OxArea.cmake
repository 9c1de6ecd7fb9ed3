# ox_area(NAME PUBLIC_HEADERS header... SOURCES source...)
#
# Adds one area (a folder of ox/) to the library: its sources are compiled in, its
# public headers, listed by hand, are installed below include/ox/NAME. Headers in
# NAME/internal/ are private and never installed.
function(ox_area name)
  cmake_parse_arguments(AREA "" "" "PUBLIC_HEADERS;SOURCES" ${ARGN})
  list(TRANSFORM AREA_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  target_sources(ox_objects PRIVATE ${AREA_SOURCES})
  list(TRANSFORM AREA_PUBLIC_HEADERS PREPEND "ox/${name}/")
  set_property(GLOBAL APPEND PROPERTY OX_PUBLIC_HEADERS ${AREA_PUBLIC_HEADERS})
endfunction()
