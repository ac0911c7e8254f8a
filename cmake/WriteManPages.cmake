# Writes the manual pages of a PROGRAM into FOLDER.
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
