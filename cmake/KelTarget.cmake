# How targets of this project are compiled, and how its two libraries are made.
include(KelExports)

# The number of the binary interface, not of the release: CONTRIBUTING.md says when it grows.
set(KELPOWER_ABI_VERSION 0)

# Products and sums are rounded one by one. Another choice only measures what it changes.
set(KELPOWER_ARITHMETIC -ffp-contract=off CACHE STRING "Compiler options for floating-point arithmetic")

# WebAssembly has no shared libraries.
get_property(hasSharedLibraries GLOBAL PROPERTY TARGET_SUPPORTS_SHARED_LIBS)
option(KELPOWER_BUILD_SHARED "Build the libraries as shared libraries" ${hasSharedLibraries})

# Gives a target the language level, the floating-point rules and the warnings of the project.
function(kel_compile_options target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE
    ${KELPOWER_ARITHMETIC} -Wall -Wextra -Wconversion -Wshadow
    $<$<BOOL:${KELPOWER_WERROR}>:-Werror>)
  if(KELPOWER_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${KELPOWER_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(${target} PRIVATE -fsanitize=${KELPOWER_SANITIZE})
  endif()
  if(KELPOWER_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage -O0)
    target_link_options(${target} PRIVATE --coverage)
  endif()
endfunction()

# Reads the headers once for all sources of a target. A compiler cache goes without: it would miss at each change of one.
function(kel_precompile target)
  if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# Compiles files that belong together as one, in half the time: `mean.cpp` with all `mean_*.cpp`, or with FOLDERS all of a
# folder. What is local to a file needs a name of its own among them. Whoever works on the sources, with a compiler cache or
# debugging information, compiles each by itself.
function(kel_compile_together target)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "FOLDERS" "" "")
  if(CMAKE_CXX_COMPILER_LAUNCHER OR NOT CMAKE_BUILD_TYPE STREQUAL "Release")
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  list(SORT sources)
  set(first " ")
  foreach(source IN LISTS sources)
    string(REGEX REPLACE "\\.cpp$" "" stem ${source})
    if(ARG_FOLDERS)
      cmake_path(GET source PARENT_PATH first)
    elseif(NOT stem MATCHES "^${first}_")
      set(first ${stem})
    endif()
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${first})
  endforeach()
endfunction()

# kel_add_headers(name LIBRARIES library... HEADERS header...)
# Reads the headers once for all targets that take them with kel_use_headers. These must be compiled as the libraries say,
# and with C++17.
function(kel_add_headers name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "LIBRARIES;HEADERS")
  file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "// Holds precompiled headers.\n")
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  kel_compile_options(${name})
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES})
  kel_precompile(${name} ${ARG_HEADERS})
endfunction()

function(kel_use_headers target name)
  if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

# Makes the library `name` from SOURCES and the CORE under them. Of a shared one only the names in the file EXPORTS are visible: one a line, a C
# name or a demangled C++ signature. Blank lines and lines that start with # are skipped. The objects of SOURCES stand
# alone as `<name>_objects`, so that tests reach the internal routines which the library hides. The core is the static
# library `<name>_core`, for programs of this project that go by it rather than by what is exported. The objects of the
# static and object libraries WITH are inside the library too.
function(kel_library name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "EXPORTS" "SOURCES;CORE;WITH")

  add_library(${name}_objects OBJECT ${ARG_SOURCES})
  set(parts ${name}_objects)
  if(ARG_CORE)
    add_library(${name}_core STATIC ${ARG_CORE})
    target_link_libraries(${name}_objects PUBLIC ${name}_core)
    list(APPEND parts ${name}_core)
  endif()
  set(objects "")
  foreach(part IN LISTS parts)
    set_target_properties(${part} PROPERTIES
      POSITION_INDEPENDENT_CODE ON
      CXX_VISIBILITY_PRESET hidden
      VISIBILITY_INLINES_HIDDEN ON)
    kel_compile_options(${part})
    list(APPEND objects $<TARGET_OBJECTS:${part}>)
  endforeach()

  foreach(inner IN LISTS ARG_WITH)
    get_target_property(type ${inner} TYPE)
    if(type STREQUAL "STATIC_LIBRARY")
      target_link_libraries(${name}_objects PUBLIC ${inner})
    endif()
    list(APPEND objects $<TARGET_OBJECTS:${inner}>)
  endforeach()

  if(KELPOWER_BUILD_SHARED)
    add_library(${name} SHARED ${objects})
    kel_export_only(${name} ${ARG_EXPORTS})
    # The sanitizers' runtime is in the program and not in its libraries.
    if(NOT KELPOWER_SANITIZE AND NOT APPLE)
      target_link_options(${name} PRIVATE -Wl,--no-undefined)
    endif()
  else()
    add_library(${name} STATIC ${objects})
  endif()
  add_library(kelpower::${name} ALIAS ${name})
  kel_compile_options(${name})
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${KELPOWER_ABI_VERSION}
    LINKER_LANGUAGE CXX)
endfunction()
