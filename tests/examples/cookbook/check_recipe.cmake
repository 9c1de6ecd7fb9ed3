# Runs PROGRAM in the folder FOLDER and expects success and the text EXPECTED on standard output.
file(MAKE_DIRECTORY "${FOLDER}")
execute_process(
  COMMAND "${PROGRAM}"
  WORKING_DIRECTORY "${FOLDER}"
  RESULT_VARIABLE status
  OUTPUT_VARIABLE output
  ERROR_QUIET)
if(NOT "${status}" STREQUAL "0")
  message(FATAL_ERROR "ended with ${status} and printed\n${output}")
endif()
file(READ "${EXPECTED}" expected)
if(NOT "${output}" STREQUAL "${expected}")
  message(FATAL_ERROR "printed\n${output}\ninstead of\n${expected}")
endif()
