# How a test program is made, and which tests a platform leaves out.

# Labels of tests that need more than the platform has. They are neither built nor registered there.
#   tools         starts Python, gnuplot, a compiler or another program of the machine that builds
#   posix         needs fork, signals, terminals or dlopen
#   replaces-new  needs that the operator new of a program serves its libraries too
#   threads       needs threads
#   patience      asks for millions of powers or studies, which tell of formulas and not of processors
set(KEL_LABELS_LEFT_OUT "")
if(CMAKE_CROSSCOMPILING)
  list(APPEND KEL_LABELS_LEFT_OUT tools patience)
endif()
if(WIN32)
  list(APPEND KEL_LABELS_LEFT_OUT posix replaces-new)
endif()
if(EMSCRIPTEN)
  list(APPEND KEL_LABELS_LEFT_OUT posix threads)
endif()

# An emulated processor is slow.
set(KEL_TEST_SECONDS 300)
if(CMAKE_CROSSCOMPILING)
  set(KEL_TEST_SECONDS 1500)
endif()

# Sets `result` to whether the test `name` with these labels is left out here, and says so.
function(kel_left_out result name)
  set(${result} FALSE PARENT_SCOPE)
  foreach(label IN LISTS ARGN)
    if(label IN_LIST KEL_LABELS_LEFT_OUT)
      message(STATUS "Left out on this platform: ${name} (${label})")
      set(${result} TRUE PARENT_SCOPE)
      return()
    endif()
  endforeach()
endfunction()

# What nearly every test program includes.
kel_add_headers(kel_test_headers LIBRARIES GTest::gtest_main
  HEADERS <gtest/gtest.h> <algorithm> <cmath> <functional> <map> <random> <string> <vector>)

# kel_add_test(name sources... [LABELS label...] [LIBRARIES library...])
# Adds the GoogleTest program `name` as one test. It is linked with the objects of the library and not with the library
# itself, so that it reaches the internal routines too. The first test label is the folder's name.
function(kel_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "LABELS;LIBRARIES")
  kel_left_out(leftOut ${name} ${ARG_LABELS})
  if(leftOut)
    return()
  endif()
  add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
  kel_compile_options(${name})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE kelpower_objects kelcommon GTest::gtest_main ${ARG_LIBRARIES})
  kel_use_headers(${name} kel_test_headers)
  kel_register_test(${name} LABELS ${ARG_LABELS} COMMAND ${name})
endfunction()

# Registers COMMAND as the test `name`, labelled with the folder's name and LABELS. The target tests_<folder> builds the
# programs that the tests of a folder run.
function(kel_register_test name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "LABELS;COMMAND")
  kel_left_out(leftOut ${name} ${ARG_LABELS})
  if(leftOut)
    return()
  endif()
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
  add_test(NAME ${name} COMMAND ${ARG_COMMAND})
  set(seconds ${KEL_TEST_SECONDS})
  if("patience" IN_LIST ARG_LABELS)
    set(seconds 1500)
  endif()
  set_tests_properties(${name} PROPERTIES LABELS "${folder};${ARG_LABELS}" TIMEOUT ${seconds})
  if(NOT TARGET tests_${folder})
    add_custom_target(tests_${folder})
  endif()
  list(GET ARG_COMMAND 0 program)
  if(TARGET ${program})
    add_dependencies(tests_${folder} ${program})
  endif()
endfunction()

# Registers a test that runs the program `target` with ARGUMENTS and compares what it prints with the file EXPECTED, and
# its exit status with STATUS, which is 0 unless given.
function(kel_add_output_test name target)
  cmake_parse_arguments(PARSE_ARGV 2 ARG "" "EXPECTED;STATUS" "LABELS;ARGUMENTS")
  if(NOT DEFINED ARG_STATUS)
    set(ARG_STATUS 0)
  endif()
  set(run ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${target}> ${ARG_ARGUMENTS})
  kel_register_test(${name} LABELS ${ARG_LABELS} COMMAND ${CMAKE_COMMAND} -D "RUN=${run}" -D EXPECTED=${ARG_EXPECTED}
    -D STATUS=${ARG_STATUS} -P ${PROJECT_SOURCE_DIR}/tests/support/compare_output.cmake)
endfunction()
