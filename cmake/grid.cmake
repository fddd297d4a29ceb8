# The grid (include/grid.def) is written once. grid_outputs includes it and prints what is derived: the two public
# headers and the README's table, which are committed and compared in the tests, and the linker's version script.
add_executable(grid_outputs tools/grid_outputs.cpp)
target_include_directories(grid_outputs PRIVATE ${PROJECT_SOURCE_DIR})

set(version_script ${PROJECT_BINARY_DIR}/ocl_zorv_v8.map)
add_custom_command(
  OUTPUT ${version_script}
  COMMAND grid_outputs version_script > ${version_script}
  DEPENDS grid_outputs
  COMMENT "Version script from the grid")
add_custom_target(version_script_file DEPENDS ${version_script})

# After a change of the grid: cmake --build ... --target headers
add_custom_target(headers
  COMMAND grid_outputs header > ${PROJECT_SOURCE_DIR}/include/ocl_zorv_v8.h
  COMMAND grid_outputs builtins > ${PROJECT_SOURCE_DIR}/include/ocl_zorv_v8_builtins.h
  COMMAND grid_outputs readme < ${PROJECT_SOURCE_DIR}/README.md > ${PROJECT_BINARY_DIR}/README.md
  COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_BINARY_DIR}/README.md ${PROJECT_SOURCE_DIR}/README.md
  COMMENT "Public headers and the README's table from the grid"
  VERBATIM)

# The names of the families that stand, known while configuring: the grid is preprocessed and read.
function(standing_families result)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/include/grid.def ${PROJECT_SOURCE_DIR}/cmake/standing_families.def)
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} -E -P -x c++ -I ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/cmake/standing_families.def
    OUTPUT_VARIABLE rows COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "standing:[^;]+" rows "${rows}")
  set(names "")
  foreach(row IN LISTS rows)
    string(REGEX MATCH "standing: *([a-z0-9_]+) (float|double)_ (accurate|native)" matched "${row}")
    set(name ${CMAKE_MATCH_1})
    if(CMAKE_MATCH_2 STREQUAL "float")
      string(APPEND name f)
    endif()
    if(CMAKE_MATCH_3 STREQUAL "native")
      string(APPEND name _native)
    endif()
    list(APPEND names ${name})
  endforeach()
  set(${result} "${names}" PARENT_SCOPE)
endfunction()
