# The static library, built and installed by the preset that a user takes, serves a consumer through
# find_package and one through pkg-config.
include("${CMAKE_CURRENT_LIST_DIR}/must_run.cmake")

file(REMOVE_RECURSE "${WORK_DIR}")
must_run(${CMAKE_COMMAND} -S "${SOURCE_DIR}" --preset install -B "${WORK_DIR}/build"
         "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_C_COMPILER=${CC}" -DBUILD_SHARED_LIBS=OFF)
must_run(${CMAKE_COMMAND} --build "${WORK_DIR}/build")

set(BINARY_DIR "${WORK_DIR}/build")
set(WORK_DIR "${WORK_DIR}/consumers")
include("${CMAKE_CURRENT_LIST_DIR}/build_consumers.cmake")
