# The Debian packages are made, and hold what they are for: the runtime package the library and its
# licence, the development package everything else.
include("${CMAKE_CURRENT_LIST_DIR}/must_run.cmake")

find_program(shlibdeps dpkg-shlibdeps)
find_program(cpack cpack)
if(NOT shlibdeps)
  message("skipped: dpkg-shlibdeps is missing (Debian: dpkg-dev)")
  return()
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
execute_process(COMMAND "${cpack}" -G DEB --config "${BINARY_DIR}/CPackConfig.cmake"
                WORKING_DIRECTORY "${WORK_DIR}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# expect_files(PACKAGE PATTERN...): each pattern matches a file of the package.
function(expect_files package)
  file(GLOB archive "${WORK_DIR}/${package}_*.deb")
  execute_process(COMMAND dpkg-deb --fsys-tarfile "${archive}" COMMAND tar -t
                  OUTPUT_VARIABLE files COMMAND_ERROR_IS_FATAL ANY)
  foreach(pattern IN LISTS ARGN)
    if(NOT files MATCHES "${pattern}\n")
      message(FATAL_ERROR "${package} has no ${pattern}:\n${files}")
    endif()
  endforeach()
  set(files "${files}" PARENT_SCOPE)
endfunction()

expect_files(libox-utilities1 "/libox_utilities\\.so\\.1" "/libox_utilities\\.so\\.1\\.[0-9.]+" "/LICENSE")
if(files MATCHES "/include/|\\.cmake|\\.py")
  message(FATAL_ERROR "the runtime package has what programs do not need:\n${files}")
endif()
expect_files(libox-utilities-dev "/libox_utilities\\.so" "/include/ox/ox_utilities\\.h"
             "/ox_utilities-config\\.cmake" "/ox_utilities\\.pc" "-gdb\\.py" "\\.natvis")

file(GLOB archive "${WORK_DIR}/libox-utilities-dev_*.deb")
execute_process(COMMAND dpkg-deb --field "${archive}" Depends OUTPUT_VARIABLE depends
                COMMAND_ERROR_IS_FATAL ANY)
if(NOT depends MATCHES "libox-utilities1 \\(= ")
  message(FATAL_ERROR "the development package depends on ${depends}")
endif()
