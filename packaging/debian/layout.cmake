# Read by cpack once for each kind of package: where each part of the program lies in it.
set(build "${CPACK_BUILD_SOURCE_DIRS}")
list(GET build 1 build)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};Thornquill;folder;/usr/lib/thornquill;${build};Thornquill;system;/usr")
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};Thornquill;folder;/;${build};Thornquill;menu;/")
endif()
