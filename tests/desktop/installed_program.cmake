# Installs the build BUILD into FOLDER and runs the program through the link in bin/, as a shell does.
# There is no display. The program must print VERSION and use the iconlist.csv in its real folder.
file(REMOVE_RECURSE "${FOLDER}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${FOLDER}" OUTPUT_QUIET
                COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE programs LIST_DIRECTORIES false "${FOLDER}/lib*/ostrane-dat-tool/*")
if(NOT programs MATCHES "^[^;]*/iconlist.csv;([^;]*/ostrane-dat;)?[^;]*/ostrane-dat-tool$")
  message(FATAL_ERROR "not iconlist.csv and the programs, but: ${programs}")
endif()
list(POP_BACK programs program)
get_filename_component(program_folder "${program}" REALPATH)
get_filename_component(program_folder "${program_folder}" DIRECTORY)

function(expect option wanted)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY
                          QT_QPA_PLATFORM=none "${FOLDER}/bin/ostrane-dat-tool" ${option}
                  OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  string(FIND "${output}" "${wanted}" at)
  if(at EQUAL -1)
    message(SEND_ERROR "${option} does not print \"${wanted}\", but:\n${output}")
  endif()
endfunction()

function(expect_error)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E env --unset=DISPLAY QT_QPA_PLATFORM=none
                          "${FOLDER}/bin/ostrane-dat-tool" ${ARGN}
                  RESULT_VARIABLE status ERROR_VARIABLE error)
  if(NOT status EQUAL 2 OR NOT error MATCHES "^ostrane-dat-tool: [^\n]+\n$")
    message(SEND_ERROR "${ARGN}: status ${status}, \"${error}\"")
  endif()
endfunction()

expect_error(--nonsense)
expect_error(one.dat two.dat)
expect_error(--help one.dat)
expect(--version "Ostrane.dat-tool ${VERSION}\n")
expect(--help "  ${program_folder}/iconlist.csv\n")

function(expect_in file wanted)
  file(READ "${file}" text)
  string(FIND "${text}" "${wanted}" at)
  if(at EQUAL -1)
    message(SEND_ERROR "${file} does not contain \"${wanted}\"")
  endif()
endfunction()

expect_in("${FOLDER}/share/man/man1/ostrane-dat-tool.1" "\"${VERSION}\"")
expect_in("${FOLDER}/share/man/man1/ostrane-dat-tool.1" "${program_folder}/iconlist.csv")
expect_in("${FOLDER}/share/doc/ostrane-dat-tool/CHANGELOG.md" "\n## ${VERSION} (")

# The command-line program finds the same descriptions.
if(EXISTS "${FOLDER}/bin/ostrane-dat")
  execute_process(COMMAND "${FOLDER}/bin/ostrane-dat" list --long
                          "${FOLDER}/share/doc/ostrane-dat-tool/examples/ostrane.dat"
                  OUTPUT_VARIABLE listed)
  if(NOT listed MATCHES "GEMS.SHP +[A-Z0-9]")
    message(SEND_ERROR "no description in:\n${listed}")
  endif()
  expect_in("${FOLDER}/share/man/man1/ostrane-dat.1" "${program_folder}/iconlist.csv")
endif()
