# For developers: cmake --build build/release --target style
# The format of all files and the static checks of those that changed, or that include what changed.
find_program(CLANG_FORMAT clang-format)
find_program(CLANG_TIDY clang-tidy)
if(NOT CLANG_FORMAT OR NOT CLANG_TIDY)
  add_custom_target(style
    COMMAND ${CMAKE_COMMAND} -E echo "clang-format or clang-tidy is missing (Debian: apt-get install clang-format clang-tidy)"
    COMMAND ${CMAKE_COMMAND} -E false
    VERBATIM)
  return()
endif()

set(style_folders frame kernels include tools tests bench examples layer)
list(TRANSFORM style_folders APPEND "/*.h" OUTPUT_VARIABLE header_patterns)
list(TRANSFORM style_folders APPEND "/*.cpp" OUTPUT_VARIABLE source_patterns)
file(GLOB_RECURSE style_headers CONFIGURE_DEPENDS ${header_patterns})
file(GLOB_RECURSE style_sources CONFIGURE_DEPENDS ${source_patterns})
file(GLOB_RECURSE style_kernels CONFIGURE_DEPENDS examples/*.cl)

set(style_stamps ${PROJECT_BINARY_DIR}/style)
file(MAKE_DIRECTORY ${style_stamps})
add_custom_command(
  OUTPUT ${style_stamps}/format
  COMMAND ${CLANG_FORMAT} --dry-run -Werror ${style_headers} ${style_sources} ${style_kernels}
  COMMAND ${CMAKE_COMMAND} -E touch ${style_stamps}/format
  DEPENDS ${style_headers} ${style_sources} ${style_kernels} .clang-format
  COMMENT "Format" VERBATIM)
set(stamps ${style_stamps}/format)

# A project of its own and sources that this configuration does not build have no compile commands.
list(FILTER style_sources EXCLUDE REGEX "/tests/consumer/")
if(NOT ZORV_TESTS)
  list(FILTER style_sources EXCLUDE REGEX "/tests/")
endif()
if(NOT ZORV_TESTS AND NOT ZORV_BENCHMARKS)
  list(FILTER style_sources EXCLUDE REGEX "/tools/")
endif()
if(NOT ZORV_BENCHMARKS)
  list(FILTER style_sources EXCLUDE REGEX "/bench/")
endif()
if(NOT ZORV_EXAMPLES)
  list(FILTER style_sources EXCLUDE REGEX "/examples/")
endif()
if(NOT TARGET ocl_zorv_v8_layer)  # nor what needs it
  list(FILTER style_sources EXCLUDE REGEX "/layer/|/runtime(/host)?\\.cpp$")
endif()
foreach(source IN LISTS style_sources)
  file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${source})
  string(REPLACE "/" "." stamp ${name})
  set(stamp ${style_stamps}/${stamp})
  add_custom_command(
    OUTPUT ${stamp}
    # clang-tidy writes no dependencies, so the preprocessor does.
    COMMAND ${CMAKE_CXX_COMPILER} ${target_options} -std=c++20 -I${PROJECT_SOURCE_DIR} -I${PROJECT_SOURCE_DIR}/examples -I${generated_include}
            -MM -MT ${stamp} -MF ${stamp}.d ${source}
    COMMAND ${CMAKE_COMMAND} -DCLANG_TIDY=${CLANG_TIDY} -DBUILD=${PROJECT_BINARY_DIR} -DSOURCE=${source}
            -P ${PROJECT_SOURCE_DIR}/cmake/static_checks.cmake
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${source} .clang-tidy cmake/static_checks.cmake ocl_zorv_v8_headers
    DEPFILE ${stamp}.d
    COMMENT "Checks of ${name}" VERBATIM)
  list(APPEND stamps ${stamp})
endforeach()

add_custom_target(style DEPENDS ${stamps})
