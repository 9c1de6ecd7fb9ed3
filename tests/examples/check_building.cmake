# A description that must succeed: STOREYS plans, a view and a mesh, no other file, and a table in
# which every element is sound.
include("${CMAKE_CURRENT_LIST_DIR}/run_building.cmake")
require_status(0)

get_filename_component(name "${DESCRIPTION}" NAME_WE)
set(expected "${name}.obj" "${name}.png")
math(EXPR last "${STOREYS} - 1")
foreach(storey RANGE ${last})
  list(APPEND expected "plan-${storey}.png")
endforeach()
file(GLOB found RELATIVE "${FOLDER}" "${FOLDER}/*" "${FOLDER}/.*")
list(SORT expected)
list(SORT found)
if(NOT "${found}" STREQUAL "${expected}")
  message(FATAL_ERROR "files ${found} instead of ${expected}")
endif()
foreach(file ${expected})
  file(SIZE "${FOLDER}/${file}" size)
  if(size LESS 1000)
    message(FATAL_ERROR "${file} holds ${size} bytes only")
  endif()
endforeach()

foreach(unwanted "Merge divergence" "off:" "nan" "inf")
  if(output MATCHES "${unwanted}")
    message(FATAL_ERROR "'${unwanted}' in the table:\n${output}")
  endif()
endforeach()
foreach(wanted "element +faces +triangles +area +volume +seconds\n" "walls of storey 0 +[1-9]"
               "walls of storey 1 +[1-9]" "slab ground +[1-9]"
               "ratio +(0\\.9999|1\\.0000)[0-9]+\n")
  if(NOT output MATCHES "${wanted}")
    message(FATAL_ERROR "'${wanted}' is missing in the table:\n${output}")
  endif()
endforeach()

# Standard output is no terminal here: the progress is plain lines, from the first to the last step.
if(NOT errors MATCHES "^  0% wall ")
  message(FATAL_ERROR "the progress does not begin with the first wall:\n${errors}")
endif()
if(NOT errors MATCHES "\n 9[0-9]% (slab|roof) [^\n]+\n$")
  message(FATAL_ERROR "the progress does not end with the last step:\n${errors}")
endif()
