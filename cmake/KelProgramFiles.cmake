# What the program brings along: its manual pages, which it writes itself, and completion for the shells.
if(CMAKE_CROSSCOMPILING)
  return()  # The program does not run here.
endif()

set(manPages ${PROJECT_BINARY_DIR}/man/man1)
set(gzip "")
if(KELPOWER_DEBIAN)
  find_program(GZIP_EXECUTABLE gzip REQUIRED)
  set(gzip ${GZIP_EXECUTABLE})
endif()
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/man/written
  COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:kelpower_cli> -D FOLDER=${manPages} -D "GZIP=${gzip}"
          -P ${PROJECT_SOURCE_DIR}/cmake/WriteManPages.cmake
  COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/man/written
  DEPENDS kelpower_cli ${PROJECT_SOURCE_DIR}/cmake/WriteManPages.cmake
  COMMENT "Writing the manual pages"
  VERBATIM)
add_custom_target(kelpower_man ALL DEPENDS ${PROJECT_BINARY_DIR}/man/written)
install(DIRECTORY ${manPages}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)

set(completions ${PROJECT_SOURCE_DIR}/cli/completions)
install(FILES ${completions}/kelpower.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME kelpower COMPONENT program)
set(zshFunctions ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
if(KELPOWER_DEBIAN)
  set(zshFunctions ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)  # where Debian's zsh looks
endif()
install(FILES ${completions}/_kelpower DESTINATION ${zshFunctions} COMPONENT program)
install(FILES ${completions}/kelpower.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
        COMPONENT program)
