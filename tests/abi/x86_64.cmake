# What is tested of the 64-bit library alone: callers for each instruction set that moves long vectors elsewhere, from
# C++ and from OpenCL C, of this compiler and of the newest that is there; and the bits of the other builds.
find_program(NEWEST_CLANG NAMES clang-22 clang-21 clang-20 clang-19 clang-18 clang-17 clang-16 clang-15)

add_library(calls_through_opencl OBJECT ${PROJECT_SOURCE_DIR}/tools/calls.cpp)
target_compile_definitions(calls_through_opencl PRIVATE GRID_CALLS_THROUGH_OPENCL)
target_link_libraries(calls_through_opencl PRIVATE ocl_zorv_v8)
target_include_directories(calls_through_opencl PRIVATE ${PROJECT_SOURCE_DIR})

function(add_caller_object object compiler source)
  add_custom_command(
    OUTPUT ${object}
    COMMAND ${compiler} ${ARGN} -fPIC -I${PROJECT_SOURCE_DIR} -I${generated_include} -MD -MF ${object}.d -c ${source}
            -o ${object}
    DEPENDS ${source} ocl_zorv_v8_headers DEPFILE ${object}.d
    COMMENT "${object}" VERBATIM)
endfunction()

function(add_callers name compiler instruction_set level)
  set(options ${target_options} -m${instruction_set} ${level})
  set(object ${CMAKE_CURRENT_BINARY_DIR}/abi/${name})
  add_caller_object(${object}.cpp.o ${compiler} ${PROJECT_SOURCE_DIR}/tools/calls.cpp -x c++ -std=c++20 ${options})
  add_caller_object(${object}.cl.o ${compiler} ${CMAKE_CURRENT_SOURCE_DIR}/abi/calls.cl -x cl -cl-std=CL1.2 ${options})
  add_executable(callers_${name}_cpp $<TARGET_OBJECTS:value_tests> ${object}.cpp.o)
  add_executable(callers_${name}_cl $<TARGET_OBJECTS:value_tests> ${object}.cl.o $<TARGET_OBJECTS:calls_through_opencl>)
  foreach(language cpp cl)
    set(callers callers_${name}_${language})
    set_target_properties(${callers} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_libraries(${callers} PRIVATE ocl_zorv_v8 ${GTEST_MAIN_LIBRARY} ${GTEST_LIBRARY})
    add_test(NAME abi.${callers}
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/runs_with.sh ${instruction_set} $<TARGET_FILE:${callers}>
                     --gtest_brief=1)
    set_tests_properties(abi.${callers} PROPERTIES SKIP_RETURN_CODE 77)
  endforeach()
endfunction()

foreach(instruction_set avx avx2 avx512f)
  foreach(level O0 O2)
    add_callers(${instruction_set}_${level} ${CMAKE_CXX_COMPILER} ${instruction_set} -${level})
  endforeach()
endforeach()
if(NEWEST_CLANG)
  add_callers(newest_sse2 ${NEWEST_CLANG} sse2 -O0)
  add_callers(newest_avx2 ${NEWEST_CLANG} avx2 -O2)
else()
  message(STATUS "No callers of a newer clang (Debian: apt-get install clang-19)")
endif()

# The bitcode, optimised once more as a run-time does, with all of it in sight: the bits of every export, and the tests
# of the library, as the bitcode takes instructions that the library does not.
function(add_same_bits_test name instruction_set digest library)
  # Instrumented code may take the factors in another order: of two NaN another one goes through then.
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    return()
  endif()
  add_test(NAME bits.${name}
           COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/runs_with.sh ${instruction_set}
                   ${CMAKE_CURRENT_SOURCE_DIR}/abi/same_bits.sh $<TARGET_FILE:digest> $<TARGET_FILE:ocl_zorv_v8>
                   ${digest} ${library} ${ARGN})
  set_tests_properties(bits.${name} PROPERTIES SKIP_RETURN_CODE 77)
endfunction()
set(instruction_set_of_x86-64 sse2)
set(instruction_set_of_x86-64-v3 avx2)
foreach(isa x86-64 x86-64-v3)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/abi/${isa})
  file(MAKE_DIRECTORY ${folder})
  set(library ${folder}/__ocl_zorv_v8.so)
  add_custom_command(
    OUTPUT ${library}
    COMMAND ${CMAKE_CXX_COMPILER} -O2 -march=${isa} -ffp-contract=off -fPIC -shared -nostdlib
            ${PROJECT_BINARY_DIR}/ocl_zorv_v8-${isa}.bc -o ${library}
    DEPENDS ${PROJECT_BINARY_DIR}/ocl_zorv_v8-${isa}.bc
    COMMENT "A library of the bitcode for ${isa}" VERBATIM)
  list(APPEND libraries_of_bitcode ${library})
  add_same_bits_test(${isa} ${instruction_set_of_${isa}} $<TARGET_FILE:digest> ${library})
  add_test(NAME bitcode.${isa}
           COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/abi/runs_with.sh ${instruction_set_of_${isa}} $<TARGET_FILE:unit_tests>
                   --gtest_brief=1)
  set_tests_properties(bitcode.${isa} PROPERTIES SKIP_RETURN_CODE 77 ENVIRONMENT "LD_LIBRARY_PATH=${folder}")
endforeach()
add_custom_target(libraries_of_bitcode ALL DEPENDS ${libraries_of_bitcode})

# The 32-bit library, where it is built as well: ./check says where.
set(ZORV_I386_BUILD "" CACHE PATH "A build for i386 to compare bits with")
if(ZORV_I386_BUILD)
  add_same_bits_test(i386 sse2 ${ZORV_I386_BUILD}/tools/digest ${ZORV_I386_BUILD}/__ocl_zorv_v8.so
                     ${CMAKE_CURRENT_SOURCE_DIR}/abi/quieted_on_i386.txt)
endif()
