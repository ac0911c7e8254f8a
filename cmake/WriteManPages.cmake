# Writes the manual pages of a PROGRAM into FOLDER, with GZIP, the name of that program, as compressed files.
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})

execute_process(COMMAND ${PROGRAM} list --format json OUTPUT_VARIABLE tests COMMAND_ERROR_IS_FATAL ANY)
string(JSON count LENGTH "${tests}")
math(EXPR last "${count} - 1")
set(commands run effect)
foreach(index RANGE ${last})
  string(JSON name GET "${tests}" ${index} name)
  list(APPEND commands ${name})
endforeach()

execute_process(COMMAND ${PROGRAM} --man OUTPUT_FILE ${FOLDER}/kelpower.1 COMMAND_ERROR_IS_FATAL ANY)
foreach(command IN LISTS commands)
  execute_process(COMMAND ${PROGRAM} --man ${command} OUTPUT_FILE ${FOLDER}/kelpower-${command}.1
                  COMMAND_ERROR_IS_FATAL ANY)
endforeach()
if(GZIP)
  file(GLOB pages ${FOLDER}/*.1)
  execute_process(COMMAND ${GZIP} -9n ${pages} COMMAND_ERROR_IS_FATAL ANY)
endif()
