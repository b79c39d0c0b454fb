# Fails if PROGRAM does not list the entries of ARCHIVE in order, or if the archive that it builds from
# the extracted entries in FOLDER differs.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
execute_process(COMMAND "${PROGRAM}" list "${ARCHIVE}" OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
if(NOT names MATCHES "^000DATUP.000\nALMANAC.TXT\n.*WORLDS.SHP\n$")
  message(FATAL_ERROR "unexpected names:\n${names}")
endif()
execute_process(COMMAND "${PROGRAM}" extract "${ARCHIVE}" -d "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${PROGRAM}" build "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${ARCHIVE}" "${FOLDER}/OSTRANE.DAT"
                COMMAND_ERROR_IS_FATAL ANY)
