# On arm64 a compiler fuses products and sums without being asked: the flags of the package stop it.
find_program(ARM64_CXX aarch64-linux-gnu-g++)
if(NOT ARM64_CXX)
  message("skipped: there is no compiler for arm64; Debian: g++-aarch64-linux-gnu")
  return()
endif()
include("${CMAKE_CURRENT_LIST_DIR}/installed_tree.cmake")

# fused_instructions(VARIABLE flag...): whether the program has any.
function(fused_instructions variable)
  set(assembly "${WORK_DIR}/dot_products.s")
  must_run("${ARM64_CXX}" -std=c++17 -O2 ${ARGN} -S
           "${CMAKE_CURRENT_LIST_DIR}/arithmetic/dot_products.cpp" -o "${assembly}")
  file(STRINGS "${assembly}" found REGEX "\t(fmadd|fmsub|fnmadd|fnmsub|fmla|fmls)\t")
  list(LENGTH found count)
  set(${variable} ${count} PARENT_SCOPE)
endfunction()

flags_of_package(flags "${prefix}" --cflags)
fused_instructions(kept ${flags})
if(kept)
  message(FATAL_ERROR "${kept} fused instructions with the flags of the package: ${flags}")
endif()
flags_of_package(flags "${prefix}" --define-variable=exact_arithmetic= --cflags)
fused_instructions(allowed ${flags})
if(NOT allowed)
  message(FATAL_ERROR "no fused instruction without the flag either: nothing was tested")
endif()
