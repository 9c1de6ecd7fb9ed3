# An output folder that cannot be made, because a file of that name is in the way.
file(REMOVE_RECURSE "${FOLDER}")
file(WRITE "${FOLDER}/occupied" "kept")
set(place "${FOLDER}/occupied")
execute_process(
  COMMAND "${PROGRAM}" "${DESCRIPTION}" --out "${place}"
  RESULT_VARIABLE status
  OUTPUT_VARIABLE output
  ERROR_VARIABLE errors)

if(NOT "${status}" STREQUAL "1" OR NOT "${output}" STREQUAL "")
  message(FATAL_ERROR "exit status ${status}\n${output}")
endif()
if(NOT "${errors}" STREQUAL "${place}: the output folder cannot be written\n")
  message(FATAL_ERROR "told as ${errors}")
endif()
file(READ "${place}" content)
if(NOT "${content}" STREQUAL "kept")
  message(FATAL_ERROR "the file in the way was changed")
endif()
