# The lists that linkers are given name what objects define, as each linker wants it.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/KelExports.cmake)

function(expect what actual expected)
  if(NOT "${actual}" STREQUAL "${expected}")
    message(FATAL_ERROR "${what} is\n${actual}\nand not\n${expected}")
  endif()
endfunction()

set(listed Plain "Space::Class::Function(double const&)")

# As nm prints the objects of Windows and Linux.
set(mangled "a.o:\n0000 T Plain\n0010 T _ZN5Space5Class8FunctionERKd\n0020 T Other\n0030 t Local\n0040 D Plain2\n")
set(demangled
  "a.o:\n0000 T Plain\n0010 T Space::Class::Function(double const&)\n0020 T Other\n0030 t Local\n0040 D Plain2\n")
kel_mangled_names(names "${listed}" "${mangled}" "${demangled}")
kel_exports_text(text .def "${names}")
expect("The module definition" "${text}" "EXPORTS\nPlain\n_ZN5Space5Class8FunctionERKd\n")

# And those of macOS, where every name has an underscore before it, which is gone from demangled signatures.
set(mangled "0000 T _Plain\n0010 T __ZN5Space5Class8FunctionERKd\n0020 T _Other\n")
set(demangled "0000 T _Plain\n0010 T Space::Class::Function(double const&)\n0020 T _Other\n")
kel_mangled_names(names "${listed}" "${mangled}" "${demangled}")
kel_exports_text(text .exp "${names}")
expect("The list of exported symbols" "${text}" "_Plain\n__ZN5Space5Class8FunctionERKd\n")

# A name that nothing defines is an error.
if(MISSING)
  kel_mangled_names(names "Absent;Plain" "0000 T Plain\n" "0000 T Plain\n")
  return()
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -D MISSING=ON -P ${CMAKE_CURRENT_LIST_FILE}
  RESULT_VARIABLE status ERROR_VARIABLE message)
if(status EQUAL 0 OR NOT message MATCHES "to be exported:[ \n]*Absent")
  message(FATAL_ERROR "A missing name is not refused: ${status}, ${message}")
endif()
