# Runs a program on any platform and compares what it prints with a file. The end of a line may be that of the platform.
# Usage: cmake -D "RUN=program;argument;..." -D EXPECTED=FILE [-D STATUS=0] -P compare_output.cmake
cmake_minimum_required(VERSION 3.25)

if(NOT DEFINED STATUS)
  set(STATUS 0)
endif()
execute_process(COMMAND ${RUN} RESULT_VARIABLE status OUTPUT_VARIABLE printed ERROR_VARIABLE complaint)
string(REPLACE "\r\n" "\n" printed "${printed}${complaint}")
file(READ ${EXPECTED} expected)
if(NOT status STREQUAL STATUS)
  message(FATAL_ERROR "The exit status is ${status} and not ${STATUS}. Printed was\n${printed}")
endif()
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "Printed was\n${printed}\nand not\n${expected}")
endif()
