# cmake -DCLANG_TIDY=... -DBUILD=... -DSOURCE=... -P: the findings in one source and its headers. The standard error,
# the number of warnings in system headers, is shown only where there is something to say.
execute_process(
  COMMAND ${CLANG_TIDY} -p ${BUILD} --quiet ${SOURCE}
  RESULT_VARIABLE result OUTPUT_VARIABLE findings ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
  message("${findings}${errors}")
  message(FATAL_ERROR "${SOURCE} has findings")
endif()
