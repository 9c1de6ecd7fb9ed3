# Installs the library into a scratch prefix and builds and runs one consumer found through
# find_package, one through pkg-config and one that takes the source tree in.
cmake_minimum_required(VERSION 3.20)

function(must_run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${out}")
  endif()
endfunction()

set(prefix "${WORK_DIR}/prefix")
set(consumer "${CMAKE_CURRENT_LIST_DIR}/consumer")
file(REMOVE_RECURSE "${WORK_DIR}")
must_run(${CMAKE_COMMAND} --install "${BINARY_DIR}" --prefix "${prefix}")

file(GLOB_RECURSE leaked "${prefix}/include/*internal*")
if(leaked)
  message(FATAL_ERROR "private headers were installed: ${leaked}")
endif()

must_run(${CMAKE_COMMAND} -S "${consumer}" -B "${WORK_DIR}/package" -G Ninja
         "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_PREFIX_PATH=${prefix}")
must_run(${CMAKE_COMMAND} --build "${WORK_DIR}/package")
must_run("${WORK_DIR}/package/consumer")

file(GLOB_RECURSE pkgconfig_file "${prefix}/*/ox_utilities.pc")
get_filename_component(pkgconfig_dir "${pkgconfig_file}" DIRECTORY)
set(pkg_config ${CMAKE_COMMAND} -E env "PKG_CONFIG_PATH=${pkgconfig_dir}" pkg-config
               "--define-variable=prefix=${prefix}")
execute_process(COMMAND ${pkg_config} --cflags --libs ox_utilities OUTPUT_VARIABLE flags
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags)
get_filename_component(library_dir "${pkgconfig_dir}" DIRECTORY)
must_run(${CXX} -std=c++17 "${consumer}/main.cpp" ${flags} "-Wl,-rpath,${library_dir}" -o
         "${WORK_DIR}/by_pkgconfig")
must_run("${WORK_DIR}/by_pkgconfig")

must_run(${CMAKE_COMMAND} -S "${CMAKE_CURRENT_LIST_DIR}/subproject" -B "${WORK_DIR}/subproject" -G
         Ninja "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_C_COMPILER=${CC}" "-DOX_SOURCE=${SOURCE_DIR}")
must_run(${CMAKE_COMMAND} --build "${WORK_DIR}/subproject")
must_run("${WORK_DIR}/subproject/consumer")
