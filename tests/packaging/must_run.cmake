# must_run(command...): stops with what a failing command printed.
cmake_minimum_required(VERSION 3.20)

function(must_run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${out}")
  endif()
endfunction()
