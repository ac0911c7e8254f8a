# How a shared library shows the names of a list and no others. Each linker has a file of its own for that.

# Lets the shared library `name` show the names in the file `list` only.
function(kel_export_only name list)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
  if(WIN32)
    kel_export_mangled(${name} ${list} def)
    target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}.def)
  elseif(APPLE)
    kel_export_mangled(${name} ${list} exp)
    set(option -Wl,-exported_symbols_list,${CMAKE_CURRENT_BINARY_DIR}/${name}.exp)
    target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}.exp)
    target_link_options(${name} PRIVATE ${option})
  else()
    kel_write_version_script(${list} ${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
    target_link_options(${name} PRIVATE -Wl,--version-script=${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
    set_property(TARGET ${name} PROPERTY LINK_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${name}.map)
  endif()
endfunction()

# These linkers take names as the objects have them: they are looked up there when the objects are made.
function(kel_export_mangled name list kind)
  set(script ${PROJECT_SOURCE_DIR}/cmake/WriteExports.cmake)
  set(file ${CMAKE_CURRENT_BINARY_DIR}/${name}.${kind})
  add_custom_command(OUTPUT ${file}
    COMMAND ${CMAKE_COMMAND} -D NM=${CMAKE_NM} -D LIST=${list} -D "OBJECTS=$<TARGET_OBJECTS:${name}_objects>"
            -D FILE=${file} -P ${script}
    DEPENDS ${list} ${script} $<TARGET_OBJECTS:${name}_objects>
    VERBATIM)
endfunction()

# The lines of a list of exported names but for blank ones and comments.
function(kel_read_exports result list)
  file(STRINGS ${list} lines REGEX "^[^#]")
  set(${result} "${lines}" PARENT_SCOPE)
endfunction()

# The version script of GNU linkers, which takes demangled signatures.
function(kel_write_version_script list file)
  kel_read_exports(lines ${list})
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
  file(CONFIGURE OUTPUT ${file} CONTENT "{\n  global:\n${plain}${signatures}  local: *;\n};\n" @ONLY)
endfunction()

# The names that objects have for what a list names. `mangled` and `demangled` are what nm prints of the same symbols,
# without and with -C. An underscore that the system puts before every name stands in both of them.
function(kel_mangled_names result listed mangled demangled)
  string(REPLACE "\n" ";" mangled "${mangled}")
  string(REPLACE "\n" ";" demangled "${demangled}")
  set(names "")
  foreach(mangledLine demangledLine IN ZIP_LISTS mangled demangled)
    if(NOT mangledLine MATCHES "^[0-9a-fA-F]+ T ([^ ]+)$")
      continue()
    endif()
    set(name "${CMAKE_MATCH_1}")
    string(REGEX REPLACE "^[0-9a-fA-F]+ T " "" signature "${demangledLine}")
    string(REGEX REPLACE "^_([A-Za-z0-9]+)$" "\\1" withoutUnderscore "${signature}")
    if(signature IN_LIST listed)
      list(REMOVE_ITEM listed "${signature}")
    elseif(withoutUnderscore IN_LIST listed)
      list(REMOVE_ITEM listed "${withoutUnderscore}")
    else()
      continue()
    endif()
    list(APPEND names "${name}")
  endforeach()
  if(listed)
    list(JOIN listed "\n  " missing)
    message(FATAL_ERROR "No object defines what is to be exported:\n  ${missing}")
  endif()
  set(${result} "${names}" PARENT_SCOPE)
endfunction()

# The text of a linker's file for these names: a module definition of Windows (.def), or Apple's list of symbols (.exp).
function(kel_exports_text result kind names)
  list(JOIN names "\n" text)
  if(kind STREQUAL ".def")
    set(text "EXPORTS\n${text}")
  endif()
  set(${result} "${text}\n" PARENT_SCOPE)
endfunction()
