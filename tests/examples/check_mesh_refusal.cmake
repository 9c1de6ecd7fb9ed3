# Runs PROGRAM with ARGUMENTS, which it must refuse with STATUS and a line with REASON, and without
# output unless OUTPUT_IS_FREE.
execute_process(
  COMMAND "${PROGRAM}" ${ARGUMENTS}
  RESULT_VARIABLE status
  OUTPUT_VARIABLE output
  ERROR_VARIABLE errors)
if(OUTPUT_IS_FREE)
  set(output "")
endif()
if(NOT "${status}" STREQUAL "${STATUS}" OR NOT "${output}" STREQUAL "")
  message(FATAL_ERROR "exit status ${status}\n${output}\n${errors}")
endif()
string(FIND "${errors}" "${REASON}" place)
if(place EQUAL -1)
  message(FATAL_ERROR "told as\n${errors}")
endif()
