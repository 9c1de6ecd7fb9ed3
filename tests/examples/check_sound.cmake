# A description whose solids must come out right: exit status 0, and no row of the table is off.
include("${CMAKE_CURRENT_LIST_DIR}/run_building.cmake")
require_status(0)

if(output MATCHES "off:")
  message(FATAL_ERROR "an element is off:\n${output}")
endif()
