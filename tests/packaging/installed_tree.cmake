# For the tests of an installed library: BINARY_DIR is the library's build, WORK_DIR a folder of the
# test's own, CXX the compiler. Installs into `prefix`.
include("${CMAKE_CURRENT_LIST_DIR}/must_run.cmake")

# output_of(VARIABLE command...): what a command that must succeed prints.
function(output_of variable)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE out OUTPUT_STRIP_TRAILING_WHITESPACE
                  COMMAND_ERROR_IS_FATAL ANY)
  set(${variable} "${out}" PARENT_SCOPE)
endfunction()

# flags_of_package(VARIABLE TREE argument...): what pkg-config says about the library in a tree.
function(flags_of_package variable tree)
  file(GLOB_RECURSE file "${tree}/*/ox_utilities.pc")
  get_filename_component(folder "${file}" DIRECTORY)
  output_of(flags ${CMAKE_COMMAND} -E env "PKG_CONFIG_PATH=${folder}" pkg-config ${ARGN}
            ox_utilities)
  separate_arguments(flags)
  set(${variable} "${flags}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
must_run(${CMAKE_COMMAND} --install "${BINARY_DIR}" --prefix "${prefix}")
