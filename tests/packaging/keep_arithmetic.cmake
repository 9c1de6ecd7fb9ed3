# A consumer's own compiler flags change no bit of the inline arithmetic: not where the processor
# fuses products and sums, unless the consumer allows it.
include("${CMAKE_CURRENT_LIST_DIR}/installed_tree.cmake")
set(sources "${CMAKE_CURRENT_LIST_DIR}/arithmetic")

must_run(${CMAKE_COMMAND} -S "${sources}" -B "${WORK_DIR}/package" -G Ninja
         "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_PREFIX_PATH=${prefix}" "-DFUSED_INSTRUCTIONS=-mfma")
must_run(${CMAKE_COMMAND} --build "${WORK_DIR}/package")
flags_of_package(flags "${prefix}" --cflags)
must_run(${CXX} -std=c++17 -O2 -mfma ${flags} "${sources}/dot_products.cpp" -o
         "${WORK_DIR}/by_pkgconfig")

file(STRINGS /proc/cpuinfo fused_processor REGEX "^flags.* fma " LIMIT_COUNT 1)
if(NOT fused_processor)
  message("skipped: this processor fuses nothing")
  return()
endif()
output_of(expected "${WORK_DIR}/package/plain")
foreach(program package/fused by_pkgconfig)
  output_of(printed "${WORK_DIR}/${program}")
  if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "${program} computes other bits")
  endif()
endforeach()
output_of(printed "${WORK_DIR}/package/free")
if(printed STREQUAL expected)
  message(FATAL_ERROR "the program that may contract computes the same bits: nothing was tested")
endif()
