# Runs PROGRAM on MODEL and compares what it prints with the file EXPECTED; the files it writes must
# be there, and the raw file must read back as the same mesh.
file(REMOVE_RECURSE "${FOLDER}")

macro(run_tool)
  execute_process(
    COMMAND "${PROGRAM}" ${ARGN}
    RESULT_VARIABLE status
    OUTPUT_VARIABLE output
    ERROR_VARIABLE errors)
  if(NOT "${status}" STREQUAL "0")
    message(FATAL_ERROR "exit status ${status}\n${errors}")
  endif()
endmacro()

run_tool("${MODEL}" --weld 0 10 --out "${FOLDER}")
file(READ "${EXPECTED}" expected)
if(NOT "${output}" STREQUAL "${expected}")
  message(FATAL_ERROR "printed\n${output}\ninstead of\n${expected}")
endif()

get_filename_component(name "${MODEL}" NAME_WE)
foreach(kind raw obj png)
  if(NOT EXISTS "${FOLDER}/${name}.${kind}")
    message(FATAL_ERROR "${name}.${kind} was not written")
  endif()
endforeach()

# An empty picture of this size compresses to a third of this.
file(SIZE "${FOLDER}/${name}.png" picture_bytes)
if(picture_bytes LESS 20000)
  message(FATAL_ERROR "the picture of ${picture_bytes} bytes shows nothing")
endif()

run_tool("${FOLDER}/${name}.raw" --weld 0 10)
string(REGEX REPLACE "vertices before  [0-9]+" "" again "${output}")
string(REGEX REPLACE "vertices before  [0-9]+" "" expected "${expected}")
if(NOT "${again}" STREQUAL "${expected}")
  message(FATAL_ERROR "the raw file gave\n${output}")
endif()
