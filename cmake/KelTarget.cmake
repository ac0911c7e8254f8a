# How targets of this project are compiled, and how its two shared libraries are made.

# The number of the binary interface, not of the release: CONTRIBUTING.md says when it grows.
set(KELPOWER_ABI_VERSION 0)

# Gives a target the language level, the floating-point rules and the warnings of the project.
function(kel_compile_options target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE
    -ffp-contract=off -Wall -Wextra -Wconversion -Wshadow
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

# Makes the shared library `name` from SOURCES. Only the names in the file EXPORTS are visible: one a line, a C name
# or a demangled C++ signature. Blank lines and lines that start with # are skipped. The objects stand alone as
# `<name>_objects`, so that tests reach the internal routines which the library hides.
function(kel_shared_library name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "EXPORTS" "SOURCES")

  add_library(${name}_objects OBJECT ${ARG_SOURCES})
  set_target_properties(${name}_objects PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  kel_compile_options(${name}_objects)

  kel_write_version_script(${name} ${ARG_EXPORTS})
  add_library(${name} SHARED)
  add_library(kelpower::${name} ALIAS ${name})
  kel_compile_options(${name})
  target_link_libraries(${name} PRIVATE ${name}_objects)
  target_link_options(${name} PRIVATE
    -Wl,--version-script=${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
  # The sanitizers' runtime is in the program and not in its libraries.
  if(NOT KELPOWER_SANITIZE)
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
  endif()
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${KELPOWER_ABI_VERSION}
    LINKER_LANGUAGE CXX
    LINK_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
endfunction()

function(kel_write_version_script name exports)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${exports})
  file(STRINGS ${exports} lines REGEX "^[^#]")
  set(plain "")
  set(signatures "")
  foreach(line IN LISTS lines)
    if(line MATCHES "\\(")
      string(APPEND signatures "      \"${line}\";\n")
    else()
      string(APPEND plain "    ${line};\n")
    endif()
  endforeach()
  if(signatures)
    set(signatures "    extern \"C++\" {\n${signatures}    };\n")
  endif()
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.map
       CONTENT "{\n  global:\n${plain}${signatures}  local: *;\n};\n" @ONLY)
endfunction()
