# Runs PROGRAM on DESCRIPTION with the output folder FOLDER, which is emptied first. Sets `status`,
# `output` and `errors`.
file(REMOVE_RECURSE "${FOLDER}")
execute_process(
  COMMAND "${PROGRAM}" "${DESCRIPTION}" --out "${FOLDER}"
  RESULT_VARIABLE status
  OUTPUT_VARIABLE output
  ERROR_VARIABLE errors)

macro(require_status expected)
  if(NOT "${status}" STREQUAL "${expected}")
    message(FATAL_ERROR "exit status ${status} instead of ${expected}\n${output}\n${errors}")
  endif()
endmacro()
