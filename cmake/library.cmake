# The product: one file, __ocl_zorv_v8.so, that depends on nothing.
include(cmake/kernels.cmake)
add_library(ocl_zorv_v8 SHARED ${kernel_sources})
add_library(ocl_zorv_v8::ocl_zorv_v8 ALIAS ocl_zorv_v8)  # the name that the installed package has
target_include_directories(ocl_zorv_v8
  PRIVATE ${PROJECT_SOURCE_DIR} ${generated_include}
  INTERFACE $<BUILD_INTERFACE:${generated_include}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
# On i386 vector operands travel in vector registers only where the caller's compiler may use them. On x86-64 the
# headers' wrappers take long vectors, which the compiler warns of, and are inlined.
set(interface_options -msse2)
if(ZORV_TARGET STREQUAL "x86_64")
  set(interface_options -Wno-psabi)
endif()
target_compile_options(ocl_zorv_v8 INTERFACE ${interface_options})
set(kernel_options
  -fPIC -fvisibility=hidden -fno-exceptions -fno-rtti -fno-stack-protector -Wconversion -Wno-sign-conversion)
target_compile_options(ocl_zorv_v8 PRIVATE ${kernel_options} -falign-functions=64)
target_link_options(ocl_zorv_v8 PRIVATE
  -nostdlib -Wl,-z,defs -Wl,-z,text -Wl,-z,noexecstack -Wl,-z,relro -Wl,-z,now
  -Wl,--version-script=${version_script})
set_target_properties(ocl_zorv_v8 PROPERTIES
  PREFIX "" OUTPUT_NAME __ocl_zorv_v8 LINK_DEPENDS ${version_script} NO_SONAME OFF)
add_dependencies(ocl_zorv_v8 ocl_zorv_v8_headers)
