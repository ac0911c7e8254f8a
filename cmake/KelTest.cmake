# How a test program is made.

# kel_add_test(name sources... [LABELS label...] [LIBRARIES library...])
# Adds the GoogleTest program `name` as one test. It is linked with the objects of the library and not with the library
# itself, so that it reaches the internal routines too. The first test label is the folder's name.
function(kel_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "LABELS;LIBRARIES")
  add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
  kel_compile_options(${name})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE kelpower_objects kelcommon GTest::gtest_main ${ARG_LIBRARIES})
  kel_register_test(${name} LABELS ${ARG_LABELS} COMMAND ${name})
endfunction()

# Registers COMMAND as the test `name`, labelled with the folder's name and LABELS.
function(kel_register_test name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "LABELS;COMMAND")
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
  add_test(NAME ${name} COMMAND ${ARG_COMMAND})
  set_tests_properties(${name} PROPERTIES LABELS "${folder};${ARG_LABELS}" TIMEOUT 300)
endfunction()
