# cmake -DPROGRAM=... [-DARGUMENT=...] [-DINPUT=...] -DEXPECTED=... -DPRINTED=... -P: a program's output, kept in
# PRINTED, equals a committed file.
set(input)
if(INPUT)
  set(input INPUT_FILE ${INPUT})
endif()
execute_process(COMMAND ${PROGRAM} ${ARGUMENT} ${input} OUTPUT_FILE ${PRINTED} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${PRINTED} ${EXPECTED} RESULT_VARIABLE differs ERROR_QUIET)
if(differs)
  message(FATAL_ERROR "${EXPECTED} is not what ${PROGRAM} prints: ${PRINTED}")
endif()
