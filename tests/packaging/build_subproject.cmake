# A project that takes the source tree in, and asks for static libraries, builds and runs its program
# and installs nothing of the library, which it did not ask for.
include("${CMAKE_CURRENT_LIST_DIR}/must_run.cmake")

file(REMOVE_RECURSE "${WORK_DIR}")
must_run(${CMAKE_COMMAND} -S "${CMAKE_CURRENT_LIST_DIR}/subproject" -B "${WORK_DIR}" -G Ninja
         "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_C_COMPILER=${CC}" "-DOX_SOURCE=${SOURCE_DIR}"
         -DBUILD_SHARED_LIBS=OFF)
must_run(${CMAKE_COMMAND} --build "${WORK_DIR}")
must_run("${WORK_DIR}/consumer")

must_run(${CMAKE_COMMAND} --install "${WORK_DIR}" --prefix "${WORK_DIR}/prefix")
file(GLOB_RECURSE installed "${WORK_DIR}/prefix/*")
if(installed)
  message(FATAL_ERROR "installed unasked: ${installed}")
endif()
