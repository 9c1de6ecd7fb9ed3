# Runs PROGRAM with ARGUMENTS, which it must refuse with STATUS and a first line of REASON.
execute_process(
  COMMAND "${PROGRAM}" ${ARGUMENTS}
  RESULT_VARIABLE status
  OUTPUT_VARIABLE output
  ERROR_VARIABLE errors)
if(NOT "${status}" STREQUAL "${STATUS}" OR NOT "${output}" STREQUAL "")
  message(FATAL_ERROR "exit status ${status}\n${output}\n${errors}")
endif()
string(FIND "${errors}" "${REASON}" place)
if(place EQUAL -1)
  message(FATAL_ERROR "told as\n${errors}")
endif()
