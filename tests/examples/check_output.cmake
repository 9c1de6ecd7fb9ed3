# Runs PROGRAM on DESCRIPTION and expects the exit status STATUS (0), the text EXPECTED on standard
# output, and in FOLDER the pictures PICTURES (separated by blanks), none of them blank, and the file
# TABLE with the content of EXPECTED_TABLE, if there is one: these files and no other.
include("${CMAKE_CURRENT_LIST_DIR}/run_building.cmake")
if(NOT DEFINED STATUS)
  set(STATUS 0)
endif()
require_status(${STATUS})

file(READ "${EXPECTED}" expected)
if(NOT "${output}" STREQUAL "${expected}")
  message(FATAL_ERROR "printed\n${output}\ninstead of\n${expected}")
endif()

separate_arguments(PICTURES)
set(wanted ${PICTURES} ${TABLE})
file(GLOB found RELATIVE "${FOLDER}" "${FOLDER}/*" "${FOLDER}/.*")
list(SORT wanted)
list(SORT found)
if(NOT "${found}" STREQUAL "${wanted}")
  message(FATAL_ERROR "files ${found} instead of ${wanted}")
endif()

list(TRANSFORM PICTURES PREPEND "${FOLDER}/")
execute_process(
  COMMAND "${CHECK_PICTURE}" ${PICTURES}
  RESULT_VARIABLE status
  ERROR_VARIABLE errors)
if(NOT "${status}" STREQUAL "0")
  message(FATAL_ERROR "${errors}")
endif()

if(DEFINED TABLE)
  file(READ "${FOLDER}/${TABLE}" table)
  file(READ "${EXPECTED_TABLE}" expected)
  if(NOT "${table}" STREQUAL "${expected}")
    message(FATAL_ERROR "the table is\n${table}\ninstead of\n${expected}")
  endif()
endif()
