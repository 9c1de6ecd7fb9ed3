# Builds and runs one consumer of the installed library that is found through find_package and one
# through pkg-config, after the installed tree was moved.
include("${CMAKE_CURRENT_LIST_DIR}/installed_tree.cmake")

file(GLOB_RECURSE leaked "${prefix}/include/*internal*")
if(leaked)
  message(FATAL_ERROR "private headers were installed: ${leaked}")
endif()
file(GLOB_RECURSE licence "${prefix}/*/LICENSE")
if(NOT licence)
  message(FATAL_ERROR "the licence was not installed")
endif()

set(moved "${WORK_DIR}/moved")
file(RENAME "${prefix}" "${moved}")

set(consumer "${CMAKE_CURRENT_LIST_DIR}/consumer")
must_run(${CMAKE_COMMAND} -S "${consumer}" -B "${WORK_DIR}/package" -G Ninja
         "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_PREFIX_PATH=${moved}")
must_run(${CMAKE_COMMAND} --build "${WORK_DIR}/package")
must_run("${WORK_DIR}/package/consumer")

flags_of_package(flags "${moved}" --cflags --libs)
file(GLOB_RECURSE library "${moved}/*/libox_utilities.*[oa]")
list(GET library 0 library)
get_filename_component(library_dir "${library}" DIRECTORY)
must_run(${CXX} -std=c++17 "${consumer}/main.cpp" ${flags} "-Wl,-rpath,${library_dir}" -o
         "${WORK_DIR}/by_pkgconfig")
must_run("${WORK_DIR}/by_pkgconfig")
