# A description that must be refused as `DESCRIPTION:LINE: REASON`, without any output and with the
# exit status STATUS (2).
include("${CMAKE_CURRENT_LIST_DIR}/run_building.cmake")
if(NOT DEFINED STATUS)
  set(STATUS 2)
endif()
require_status(${STATUS})

if(NOT "${errors}" STREQUAL "${DESCRIPTION}:${LINE}: ${REASON}\n")
  message(FATAL_ERROR "told as\n${errors}instead of\n${DESCRIPTION}:${LINE}: ${REASON}")
endif()
if(NOT "${output}" STREQUAL "" OR EXISTS "${FOLDER}")
  message(FATAL_ERROR "a refused description left output:\n${output}")
endif()
