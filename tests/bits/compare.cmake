# Runs PROGRAM and compares what it prints with the file EXPECTED, line by line.
execute_process(
  COMMAND "${PROGRAM}"
  OUTPUT_VARIABLE printed
  RESULT_VARIABLE status)
# The solid booleans report on standard output too.
string(REGEX REPLACE "Merge divergence for [0-9]+\n" "" printed "${printed}")
file(READ "${EXPECTED}" expected)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} failed: ${status}")
endif()
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "The results have other bits.\nPrinted:\n${printed}\nExpected:\n${expected}")
endif()
