# Lets find_package find what a build for another platform needs among the packages of this machine: headers that
# compile anywhere, and the sources of GoogleTest. So it does for a package of sources, which brings the headers with it.
# Another build for this machine finds its packages by itself.
set(KEL_BUNDLE ${PROJECT_SOURCE_DIR}/third_party)
if(SKBUILD AND NOT EXISTS ${KEL_BUNDLE})
  find_package(fmt QUIET)
  find_package(nlohmann_json QUIET)
  find_package(FastFloat QUIET)
  if(NOT fmt_FOUND OR NOT nlohmann_json_FOUND OR NOT FastFloat_FOUND)
    set(KEL_BUNDLE ${PROJECT_BINARY_DIR}/third_party)
    execute_process(COMMAND sh ${PROJECT_SOURCE_DIR}/tools/third_party.sh ${KEL_BUNDLE} COMMAND_ERROR_IS_FATAL ANY)
  endif()
endif()
if(EXISTS ${KEL_BUNDLE})
  set(KEL_HEADER_ROOT ${KEL_BUNDLE})
elseif(CMAKE_CROSSCOMPILING)
  set(KEL_HEADER_ROOT /usr/include)
else()
  return()
endif()

# Each package has a link in this folder. The folder that they are installed in cannot be used: it has the system
# headers of this machine too.
set(KEL_HEADERS ${PROJECT_BINARY_DIR}/headers)

# An answer to find_package, which looks into this folder first.
function(kel_declare_package package)
  file(WRITE ${CMAKE_FIND_PACKAGE_REDIRECTS_DIR}/${package}Config.cmake "# Declared in KelPackages.cmake.\n")
endfunction()

# Makes `target` of the headers in the folder `folder` under the root, for find_package(`package`).
function(kel_header_package package folder target)
  if(NOT EXISTS ${KEL_HEADER_ROOT}/${folder})
    message(FATAL_ERROR "${KEL_HEADER_ROOT}/${folder} is missing; tools/install_packages.sh installs it")
  endif()
  file(MAKE_DIRECTORY ${KEL_HEADERS})
  file(CREATE_LINK ${KEL_HEADER_ROOT}/${folder} ${KEL_HEADERS}/${folder} COPY_ON_ERROR SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} INTERFACE ${KEL_HEADERS})
  kel_declare_package(${package})
endfunction()

kel_header_package(fmt fmt fmt::fmt)
kel_header_package(nlohmann_json nlohmann nlohmann_json::nlohmann_json)
kel_header_package(FastFloat fast_float FastFloat::fast_float)
if(KELPOWER_BUILD_CLI)
  kel_header_package(CLI11 CLI CLI11::CLI11)
endif()

# GoogleTest, compiled once for all tests.
if(KELPOWER_BUILD_TESTS)
  set(googletest /usr/src/googletest/googletest)
  add_library(kel_googletest STATIC ${googletest}/src/gtest-all.cc ${googletest}/src/gtest_main.cc)
  target_include_directories(kel_googletest SYSTEM PUBLIC ${googletest}/include PRIVATE ${googletest})
  target_compile_features(kel_googletest PUBLIC cxx_std_17)
  if(EMSCRIPTEN)
    target_compile_definitions(kel_googletest PUBLIC GTEST_HAS_PTHREAD=0)
  endif()
  add_library(GTest::gtest_main ALIAS kel_googletest)
  kel_declare_package(GTest)
endif()
