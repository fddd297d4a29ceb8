# The library as LLVM bitcode, for run-times that link it into the kernels that they compile: one file for each
# instruction set, as the optimiser does not inline between functions of different ones. All computes in units of 128
# bits, so every file gives the bits of the shared library.
string(REGEX MATCH "^[0-9]+" llvm_version ${CMAKE_CXX_COMPILER_VERSION})
find_program(LLVM_LINK NAMES llvm-link-${llvm_version} llvm-link)
if(NOT LLVM_LINK)
  message(FATAL_ERROR "The bitcode needs llvm-link (Debian: apt-get install llvm)")
endif()

set(bitcode_files "")
foreach(isa x86-64 x86-64-v3)
  set(objects bitcode_${isa})
  add_library(${objects} OBJECT EXCLUDE_FROM_ALL ${kernel_sources})
  target_include_directories(${objects} PRIVATE ${PROJECT_SOURCE_DIR} ${generated_include})
  target_compile_options(${objects} PRIVATE ${kernel_options} -march=${isa} -emit-llvm)
  target_compile_definitions(${objects} PRIVATE ZORV_BITCODE)
  add_dependencies(${objects} ocl_zorv_v8_headers)

  # The optimiser of the run-time must not see the values of the records (frame/record.h): it would fold constants into
  # each other, which turns the sign of a NaN. Initialised externally, they are data that it has to load.
  # Once however often: two parts of the library may bring the same record into one program.
  set(file ${PROJECT_BINARY_DIR}/ocl_zorv_v8-${isa}.bc)
  add_custom_command(
    OUTPUT ${file}
    COMMAND ${LLVM_LINK} -S $<TARGET_OBJECTS:${objects}> -o ${file}.ll
    COMMAND sed -i "s/^\\(@.*\\) = hidden \\(.*\\)constant /\\1 = linkonce_odr hidden \\2externally_initialized constant /"
            ${file}.ll
    COMMAND ${LLVM_LINK} ${file}.ll -o ${file}
    DEPENDS ${objects} $<TARGET_OBJECTS:${objects}>
    COMMAND_EXPAND_LISTS VERBATIM
    COMMENT "Bitcode for ${isa}")
  list(APPEND bitcode_files ${file})
endforeach()
add_custom_target(bitcode ALL DEPENDS ${bitcode_files})
