# The grid (include/grid.def) is written once. grid_outputs includes it and prints what is derived: the two public
# headers and the linker's version script, made by every build, and the README's table and docs/families.md, committed
# and compared in the tests.
add_executable(grid_outputs tools/grid_outputs.cpp)
target_include_directories(grid_outputs PRIVATE ${PROJECT_SOURCE_DIR})
target_compile_options(grid_outputs PRIVATE -O0)  # runs for a moment, and everything waits for it

# What is made into the build folder: the public headers, found there as a user finds them in an installed tree, and
# the version script.
set(generated_include ${PROJECT_BINARY_DIR}/include)
set(version_script ${PROJECT_BINARY_DIR}/ocl_zorv_v8.map)
file(MAKE_DIRECTORY ${generated_include})
function(from_grid what output)
  add_custom_command(
    OUTPUT ${output}
    COMMAND $<TARGET_FILE:grid_outputs> ${what} > ${output}  # its name alone would do only where nothing is crossed
    DEPENDS grid_outputs
    COMMENT "From the grid: ${what}")
endfunction()
from_grid(header ${generated_include}/ocl_zorv_v8.h)
from_grid(builtins ${generated_include}/ocl_zorv_v8_builtins.h)
from_grid(version_script ${version_script})
add_custom_target(ocl_zorv_v8_headers
  DEPENDS ${generated_include}/ocl_zorv_v8.h ${generated_include}/ocl_zorv_v8_builtins.h ${version_script})

if(PROJECT_IS_TOP_LEVEL)
  add_custom_target(headers)
  add_dependencies(headers ocl_zorv_v8_headers)

  # After a change of the grid or of what the operations are: cmake --build ... --target readme
  add_custom_target(readme
    COMMAND grid_outputs readme < ${PROJECT_SOURCE_DIR}/README.md > ${PROJECT_BINARY_DIR}/README.md
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_BINARY_DIR}/README.md ${PROJECT_SOURCE_DIR}/README.md
    COMMAND grid_outputs families > ${PROJECT_SOURCE_DIR}/docs/families.md
    COMMENT "The README's table and docs/families.md from the grid"
    VERBATIM)
endif()
