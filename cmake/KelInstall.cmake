# Installs the libraries, their headers, the program, and the files by which CMake and pkg-config find them. Each file
# belongs to a component, of which packages are made: each library, what is needed to build with them, and the program.
include(CMakePackageConfigHelpers)

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/kelpower)

if(TARGET kelpower_cli)
  install(TARGETS kelpower_cli RUNTIME COMPONENT program)
  include(KelProgramFiles)
endif()

set(libraries kelcommon kelpower)
if(TARGET kelplan)
  list(APPEND libraries kelplan)
  install(FILES capi/kelplan.h TYPE INCLUDE COMPONENT development)
  install(DIRECTORY capi/schema DESTINATION ${CMAKE_INSTALL_DATADIR}/kelpower COMPONENT development)
endif()
# The libraries find each other wherever the tree is moved.
foreach(library IN LISTS libraries)
  set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${library} EXPORT kelpowerTargets
    RUNTIME COMPONENT ${library}
    LIBRARY COMPONENT ${library} NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development)
endforeach()
install(FILES include/kelpower.h TYPE INCLUDE COMPONENT development)
install(DIRECTORY kelcommon/include/kelcommon TYPE INCLUDE COMPONENT development FILES_MATCHING PATTERN "*.h")

install(EXPORT kelpowerTargets NAMESPACE kelpower:: DESTINATION ${packageDir} COMPONENT development)
configure_package_config_file(cmake/kelpowerConfig.cmake.in kelpowerConfig.cmake INSTALL_DESTINATION ${packageDir})
write_basic_package_version_file(kelpowerConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kelpowerConfig.cmake ${PROJECT_BINARY_DIR}/kelpowerConfigVersion.cmake
        DESTINATION ${packageDir} COMPONENT development)

# Folders are relative to the .pc file, so these too can be moved.
set(pkgConfigDir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgConfigDir}
           OUTPUT_VARIABLE prefixFromPkgConfig)
foreach(library IN LISTS libraries)
  configure_file(cmake/${library}.pc.in ${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${library}.pc DESTINATION ${pkgConfigDir} COMPONENT development)
endforeach()

if(KELPOWER_DEBIAN)
  include(KelDebian)
endif()
