# Writes FILE, by which a linker shows what LIST names and OBJECTS define.
# Usage: cmake -D NM=... -D LIST=... -D OBJECTS=... -D FILE=... -P WriteExports.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/KelExports.cmake)

foreach(option "" -C)
  execute_process(COMMAND ${NM} -p -g --defined-only ${option} ${OBJECTS}
    OUTPUT_VARIABLE symbols${option} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
kel_read_exports(listed ${LIST})
kel_mangled_names(names "${listed}" "${symbols}" "${symbols-C}")
cmake_path(GET FILE EXTENSION LAST_ONLY kind)
kel_exports_text(text ${kind} "${names}")
file(WRITE ${FILE} "${text}")
