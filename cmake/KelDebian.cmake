# The Debian packages: a component is a package. CPack makes them of an installation under /usr.
set(maintainer "The kelpower authors <maintainers@kelpower.example>")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_NAME kelpower)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each has its own
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL kelcommon kelpower kelplan development program python3)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${maintainer}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# As Debian wants them: owned by root, and none with rights that depend on who builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# What each needs is read off its files. The libraries of one build go together.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/kelcommon ${PROJECT_BINARY_DIR}/src
  ${PROJECT_BINARY_DIR}/capi)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

string(TIMESTAMP changelogDate "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(packaging/debian/changelog.in debian/changelog @ONLY)
find_program(GZIP_EXECUTABLE gzip REQUIRED)
execute_process(COMMAND ${GZIP_EXECUTABLE} -9nfk ${PROJECT_BINARY_DIR}/debian/changelog COMMAND_ERROR_IS_FATAL ANY)

# Sets `result` to the paragraphs, with lines as short as Debian wants them, and blank ones between paragraphs.
function(kel_wrap result)
  set(lines "")
  foreach(paragraph IN LISTS ARGN)
    set(line "")
    string(REPLACE " " ";" words "${paragraph}")
    foreach(word IN LISTS words)
      string(LENGTH "${line} ${word}" length)
      if(length GREATER 76)
        list(APPEND lines "${line}")
        set(line "")
      endif()
      string(APPEND line " ${word}")
      string(STRIP "${line}" line)
    endforeach()
    list(APPEND lines "${line}" "")
  endforeach()
  list(JOIN lines "\n" text)
  string(STRIP "${text}" text)
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# kel_debian_package(COMPONENT NAME SECTION SYNOPSIS paragraph... [DEPENDS component...])
function(kel_debian_package component name section synopsis)
  cmake_parse_arguments(PARSE_ARGV 4 ARG "" "" "DEPENDS")
  string(TOUPPER ${component} upper)
  kel_wrap(description ${ARG_UNPARSED_ARGUMENTS})
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${synopsis}\n${description}" PARENT_SCOPE)
  set(CPACK_COMPONENT_${upper}_DEPENDS ${ARG_DEPENDS} PARENT_SCOPE)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/debian/copyright ${PROJECT_BINARY_DIR}/debian/changelog.gz
          DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
endfunction()

# The package of the shared library `component`. It tells which package programs need that are linked with it, and lets
# the loader's list of libraries be written anew.
function(kel_debian_library component synopsis)
  set(name lib${component}${KELPOWER_ABI_VERSION})
  kel_debian_package(${component} ${name} libs "${synopsis}" ${ARGN})
  string(TOUPPER ${component} upper)
  set(folder ${PROJECT_BINARY_DIR}/debian/${name})
  file(CONFIGURE OUTPUT ${folder}/shlibs @ONLY
       CONTENT "lib@component@ @KELPOWER_ABI_VERSION@ @name@ (>= @PROJECT_VERSION@)\n")
  file(CONFIGURE OUTPUT ${folder}/triggers CONTENT "activate-noawait ldconfig\n")
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${folder}/shlibs ${folder}/triggers PARENT_SCOPE)
  foreach(variable DEBIAN_${upper}_PACKAGE_NAME DEBIAN_${upper}_PACKAGE_SECTION COMPONENT_${upper}_DESCRIPTION
          COMPONENT_${upper}_DEPENDS)
    set(CPACK_${variable} "${CPACK_${variable}}" PARENT_SCOPE)
  endforeach()
endfunction()

set(about "kelpower plans studies: the power of a test, the sample size for a power, the half-width of a confidence \
interval and the size for it, the effect that a design detects, and charts. Tests of means, analyses of variance, \
proportions, correlations, regression, ranks, variances and contingency tables.")
kel_debian_library(kelcommon
  "accurate probability distributions in plain doubles"
  "Normal, t, F, chi-square, binomial, beta and gamma distributions with their noncentral forms, the \
studentized range and others, accurate to the last digits that a double has.")
kel_debian_library(kelpower
  "statistical power analysis as a library of functions"
  "${about}" "This package has the library of functions for C++." DEPENDS kelcommon)
kel_debian_library(kelplan
  "statistical power analysis as a C interface"
  "${about}" "This package has the C interface, with requests and answers in JSON, for programs in any language."
  DEPENDS kelcommon)
kel_debian_package(development libkelpower-dev libdevel
  "statistical power analysis, development files"
  "${about}" "This package has what is needed to build with the libraries kelcommon, kelpower and \
kelplan: headers, links, and files for CMake and pkg-config."
  DEPENDS kelcommon kelpower kelplan)
kel_debian_package(program kelpower math
  "plan studies: power, sample size and precision"
  "${about}" "This package has the program, with manual pages and completion for bash, zsh and fish.")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "gnuplot-nox | gnuplot")
include(KelDebianPython)
include(CPack)
