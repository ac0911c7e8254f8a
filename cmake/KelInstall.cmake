# Installs the libraries, their headers, the program, and the files by which CMake and pkg-config find them.
include(CMakePackageConfigHelpers)

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/kelpower)

# The installed program finds the libraries, and the libraries each other, wherever the tree is moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR} OUTPUT_VARIABLE libFromBin)
set_target_properties(kelcommon kelpower PROPERTIES INSTALL_RPATH "$ORIGIN")
if(TARGET kelpower_cli)
  set_target_properties(kelpower_cli PROPERTIES INSTALL_RPATH "$ORIGIN/${libFromBin}")
  install(TARGETS kelpower_cli)
endif()

install(TARGETS kelcommon kelpower EXPORT kelpowerTargets)
set(libraries kelcommon kelpower)
if(TARGET kelplan)
  list(APPEND libraries kelplan)
  set_target_properties(kelplan PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(TARGETS kelplan EXPORT kelpowerTargets)
  install(FILES capi/kelplan.h TYPE INCLUDE)
  install(DIRECTORY capi/schema DESTINATION ${CMAKE_INSTALL_DATADIR}/kelpower)
endif()
install(FILES include/kelpower.h TYPE INCLUDE)
install(DIRECTORY kelcommon/include/kelcommon TYPE INCLUDE FILES_MATCHING PATTERN "*.h")

install(EXPORT kelpowerTargets NAMESPACE kelpower:: DESTINATION ${packageDir})
configure_package_config_file(cmake/kelpowerConfig.cmake.in kelpowerConfig.cmake INSTALL_DESTINATION ${packageDir})
write_basic_package_version_file(kelpowerConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kelpowerConfig.cmake ${PROJECT_BINARY_DIR}/kelpowerConfigVersion.cmake
        DESTINATION ${packageDir})

# Folders are relative to the .pc file, so these too can be moved.
set(pkgConfigDir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgConfigDir}
           OUTPUT_VARIABLE prefixFromPkgConfig)
foreach(library IN LISTS libraries)
  configure_file(cmake/${library}.pc.in ${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${library}.pc DESTINATION ${pkgConfigDir})
endforeach()
