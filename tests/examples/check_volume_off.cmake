# A description whose solids do not come out right: exit status 3, and the table says which.
include("${CMAKE_CURRENT_LIST_DIR}/run_building.cmake")
require_status(3)

if(NOT output MATCHES "walls of storey 0[^\n]*\n +\\^ off: the formulas give [0-9.]+")
  message(FATAL_ERROR "the table does not tell what is off:\n${output}")
endif()
