# The format and the static checks, as a target that looks at changed files alone and as a test.
find_program(CLANG_FORMAT clang-format)
find_program(CLANG_TIDY clang-tidy)
if(NOT CLANG_FORMAT OR NOT CLANG_TIDY)
  message(FATAL_ERROR "ZORV_STYLE needs clang-format and clang-tidy (Debian: apt-get install clang-format clang-tidy)")
endif()

set(style_folders frame kernels tools tests bench examples)
list(TRANSFORM style_folders APPEND "/*.h" OUTPUT_VARIABLE header_patterns)
list(TRANSFORM style_folders APPEND "/*.cpp" OUTPUT_VARIABLE source_patterns)
file(GLOB_RECURSE style_headers CONFIGURE_DEPENDS ${header_patterns})
file(GLOB_RECURSE style_sources CONFIGURE_DEPENDS ${source_patterns})
file(GLOB_RECURSE style_kernels CONFIGURE_DEPENDS examples/*.cl)

set(stamps ${PROJECT_BINARY_DIR}/style/format)
add_custom_command(
  OUTPUT ${PROJECT_BINARY_DIR}/style/format
  COMMAND ${CLANG_FORMAT} --dry-run -Werror ${style_headers} ${style_sources} ${style_kernels}
  COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/style/format
  DEPENDS ${style_headers} ${style_sources} ${style_kernels} .clang-format
  COMMENT "Format" VERBATIM)

# A project of its own and sources that this configuration does not build have no compile commands.
list(FILTER style_sources EXCLUDE REGEX "/tests/consumer/")
if(NOT ZORV_BENCHMARKS)
  list(FILTER style_sources EXCLUDE REGEX "/bench/")
endif()
if(NOT ZORV_EXAMPLES)
  list(FILTER style_sources EXCLUDE REGEX "/examples/")
endif()
foreach(name IN LISTS examples_that_wait)
  list(FILTER style_sources EXCLUDE REGEX "/examples/${name}/")
endforeach()
foreach(source IN LISTS style_sources)
  file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${source})
  string(REPLACE "/" "." stamp ${name})
  set(stamp ${PROJECT_BINARY_DIR}/style/${stamp})
  add_custom_command(
    OUTPUT ${stamp}
    # The standard error holds the number of warnings in system headers.
    COMMAND sh -c "${CLANG_TIDY} -p ${PROJECT_BINARY_DIR} --quiet ${source} 2>/dev/null && touch ${stamp}"
    DEPENDS ${source} ${style_headers} include/grid.def .clang-tidy
    COMMENT "Checks of ${name}" VERBATIM)
  list(APPEND stamps ${stamp})
endforeach()

add_custom_target(style DEPENDS ${stamps})
add_test(NAME style COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target style -- -k 0)
