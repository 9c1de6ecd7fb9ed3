# Programs built with the first library of this major version run with this one: what they know of it,
# symbols, layouts and virtual functions, is compared with a dump. WRITE makes the dump anew.
find_program(ABIDIFF abidiff)
find_program(ABIDW abidw)
if(NOT ABIDIFF OR NOT ABIDW)
  message("skipped: abidiff and abidw are missing; Debian: abigail-tools")
  return()
endif()
include("${CMAKE_CURRENT_LIST_DIR}/must_run.cmake")

# Layouts are read from debugging information.
file(REMOVE_RECURSE "${WORK_DIR}")
must_run(${CMAKE_COMMAND} -S "${SOURCE_DIR}" --preset install -B "${WORK_DIR}/build"
         "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_C_COMPILER=${CC}" -DCMAKE_BUILD_TYPE=Debug
         -DCMAKE_INSTALL_LIBDIR=lib "-DCMAKE_INSTALL_PREFIX=${WORK_DIR}/prefix")
must_run(${CMAKE_COMMAND} --build "${WORK_DIR}/build" --target install)
set(name libox_utilities.abi)
set(stored "${CMAKE_CURRENT_LIST_DIR}/${name}.tar.xz")
must_run(${ABIDW} --headers-dir "${WORK_DIR}/prefix/include" --drop-private-types
         --exported-interfaces-only --no-corpus-path --no-comp-dir-path --no-show-locs --out-file
         "${WORK_DIR}/${name}" "${WORK_DIR}/prefix/lib/libox_utilities.so")
if(WRITE)
  must_run(${CMAKE_COMMAND} -E chdir "${WORK_DIR}" ${CMAKE_COMMAND} -E tar cJf "${stored}" ${name})
  return()
endif()

file(ARCHIVE_EXTRACT INPUT "${stored}" DESTINATION "${WORK_DIR}/first")
# What is added breaks nothing.
must_run(${ABIDIFF} --no-added-syms "${WORK_DIR}/first/${name}" "${WORK_DIR}/${name}")
