# What a user's build finds: the library, its two headers, a CMake package and a pkg-config file. Both packages find
# the files relative to themselves, so an installed tree can be moved.
include(CMakePackageConfigHelpers)

install(TARGETS ocl_zorv_v8 EXPORT ocl_zorv_v8 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${generated_include}/ocl_zorv_v8.h ${generated_include}/ocl_zorv_v8_builtins.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

if(ZORV_TARGET STREQUAL "x86_64")
  install(FILES ${bitcode_files} DESTINATION ${CMAKE_INSTALL_LIBDIR}/ocl_zorv_v8)
endif()

# Beside the library, so that those for two architectures share a prefix.
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/ocl_zorv_v8)
install(EXPORT ocl_zorv_v8 NAMESPACE ocl_zorv_v8:: FILE ocl_zorv_v8-targets.cmake DESTINATION ${package_folder})
configure_package_config_file(cmake/ocl_zorv_v8-config.cmake.in ocl_zorv_v8-config.cmake
  INSTALL_DESTINATION ${package_folder} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# The pointer size is checked by the package itself, with a message that helps.
write_basic_package_version_file(ocl_zorv_v8-config-version.cmake COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES ${PROJECT_BINARY_DIR}/ocl_zorv_v8-config.cmake ${PROJECT_BINARY_DIR}/ocl_zorv_v8-config-version.cmake
  DESTINATION ${package_folder})

# What is told from the file's own place moves with the tree; an absolute folder for libraries stays where it is, and the
# prefix must be the one that was configured.
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(pc_prefix ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH up /prefix/${pkgconfig_folder} /prefix)
  string(REGEX REPLACE "/$" "" up ${up})
  set(pc_prefix "\${pcfiledir}/${up}")
endif()
set(pc_libdir "\${prefix}")
cmake_path(APPEND pc_libdir ${CMAKE_INSTALL_LIBDIR})
set(pc_includedir "\${prefix}")
cmake_path(APPEND pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
foreach(folder pc_prefix pc_libdir pc_includedir)
  string(REPLACE " " "\\ " ${folder} "${${folder}}")  # as pkg-config has it
endforeach()
configure_file(cmake/ocl_zorv_v8.pc.in ocl_zorv_v8.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ocl_zorv_v8.pc DESTINATION ${pkgconfig_folder})
