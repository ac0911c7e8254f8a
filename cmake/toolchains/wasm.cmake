# WebAssembly, with Debian's Emscripten. Programs run in Node and see the files of this machine.
set(emscripten /usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
if(NOT EXISTS ${emscripten})
  message(FATAL_ERROR "Emscripten is missing: ${emscripten}")
endif()
include(${emscripten})

# Exceptions are those of WebAssembly itself. Emscripten's other kind makes calls by way of JavaScript.
set(CMAKE_CXX_FLAGS_INIT -fwasm-exceptions)
set(CMAKE_EXE_LINKER_FLAGS_INIT
  "-fwasm-exceptions -sNODERAWFS=1 -sALLOW_MEMORY_GROWTH=1 -sTOTAL_STACK=8MB -sEXIT_RUNTIME=1")

# Emscripten's loader would take Node's fetch for that of a browser, which opens no files.
set(CMAKE_CROSSCOMPILING_EMULATOR node --no-experimental-fetch)
