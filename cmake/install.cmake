# What a user's build finds: the library, its two headers, a CMake package and a pkg-config file. Both packages find
# the files relative to themselves, so an installed tree can be moved.
include(CMakePackageConfigHelpers)

install(TARGETS ocl_zorv_v8 EXPORT ocl_zorv_v8 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${generated_include}/ocl_zorv_v8.h ${generated_include}/ocl_zorv_v8_builtins.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# The package stands where a search finds it whatever architecture CMake believes in: there is one alone.
set(package_folder lib/cmake/ocl_zorv_v8)
install(EXPORT ocl_zorv_v8 NAMESPACE ocl_zorv_v8:: FILE ocl_zorv_v8-targets.cmake DESTINATION ${package_folder})
configure_package_config_file(cmake/ocl_zorv_v8-config.cmake.in ocl_zorv_v8-config.cmake
  INSTALL_DESTINATION ${package_folder} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# The pointer size is checked by the package itself, with a message that helps.
write_basic_package_version_file(ocl_zorv_v8-config-version.cmake COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES ${PROJECT_BINARY_DIR}/ocl_zorv_v8-config.cmake ${PROJECT_BINARY_DIR}/ocl_zorv_v8-config-version.cmake
  DESTINATION ${package_folder})

set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH prefix_from_pkgconfig /prefix/${pkgconfig_folder} /prefix)
configure_file(cmake/ocl_zorv_v8.pc.in ocl_zorv_v8.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ocl_zorv_v8.pc DESTINATION ${pkgconfig_folder})
