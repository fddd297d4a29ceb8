# The grid (include/grid.def) is written once. grid_outputs includes it and prints what is derived: the two public
# headers, which are committed and compared in the tests, and the linker's version script.
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
  COMMENT "Public headers from the grid"
  VERBATIM)
