# The kernels: every group is a folder of kernels/, and every source in it is found by itself. A source exports the
# families whose home it is, and is told its own name for that.
file(GLOB kernel_sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} kernels/*/*.cpp)
foreach(source IN LISTS kernel_sources)
  get_filename_component(home ${source} NAME_WE)
  set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS "HOME_${home}=,here")
endforeach()
