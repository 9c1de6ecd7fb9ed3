# Runs PROGRAM in the folder FOLDER and expects success; the text of the file EXPECTED (else nothing) on
# standard output; and, when that is given, a file like EXPECTED_FILE.
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
set(expected "")
if(DEFINED EXPECTED)
  file(READ "${EXPECTED}" expected)
endif()
if(NOT "${output}" STREQUAL "${expected}")
  message(FATAL_ERROR "printed\n${output}\ninstead of\n${expected}")
endif()
if(DEFINED EXPECTED_FILE)
  get_filename_component(name "${EXPECTED_FILE}" NAME)
  file(READ "${FOLDER}/${name}" written)
  file(READ "${EXPECTED_FILE}" expected)
  if(NOT "${written}" STREQUAL "${expected}")
    message(FATAL_ERROR "wrote\n${written}\ninstead of\n${expected}")
  endif()
endif()
