# The product: one file, __ocl_zorv_v8.so, that depends on nothing.
include(cmake/kernels.cmake)
add_library(ocl_zorv_v8 SHARED ${kernel_sources})
add_library(ocl_zorv_v8::ocl_zorv_v8 ALIAS ocl_zorv_v8)  # the name that the installed package has
target_include_directories(ocl_zorv_v8
  PRIVATE ${PROJECT_SOURCE_DIR} ${generated_include}
  INTERFACE $<BUILD_INTERFACE:${generated_include}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
# Vector operands travel in vector registers only where the caller's compiler may use them.
target_compile_options(ocl_zorv_v8 INTERFACE -msse2)
target_compile_options(ocl_zorv_v8 PRIVATE
  -fPIC -fvisibility=hidden -fno-exceptions -fno-rtti -fno-stack-protector -Wconversion -Wno-sign-conversion)
target_link_options(ocl_zorv_v8 PRIVATE
  -nostdlib -Wl,-z,defs -Wl,-z,text -Wl,-z,noexecstack -Wl,-z,relro -Wl,-z,now
  -Wl,--version-script=${version_script})
set_target_properties(ocl_zorv_v8 PROPERTIES
  PREFIX "" OUTPUT_NAME __ocl_zorv_v8 LINK_DEPENDS ${version_script} NO_SONAME OFF)
add_dependencies(ocl_zorv_v8 ocl_zorv_v8_headers)
