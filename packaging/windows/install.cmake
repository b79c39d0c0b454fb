# The folder of the programs for Windows: what the zip and the setup contain.
install(TARGETS ${programs} RUNTIME DESTINATION .)
install(FILES LICENSE DESTINATION . RENAME LICENSE.txt)
install(FILES packaging/copyright DESTINATION licences RENAME ostrane-dat-tool.txt)
if(NOT TARGET ostrane-dat-tool)
  return()
endif()
install(DIRECTORY "${CMAKE_BINARY_DIR}/libraries/" DESTINATION .)
install(DIRECTORY "${OSTRANE_WINDOWS_LIBRARIES}/licences" DESTINATION .)
install(FILES "${CMAKE_BINARY_DIR}/sample/ostrane.dat" "${CMAKE_BINARY_DIR}/sample/iconlist.csv"
        DESTINATION sample)
install(FILES "${CMAKE_BINARY_DIR}/sample/iconlist.csv" DESTINATION .)

# The manual as HTML and text.
set(manual "${CMAKE_BINARY_DIR}/manual")
set(program_folder "the folder of the program: .")
set(examples_folder "the folder sample beside the program")
configure_file(packaging/ostrane-dat.1.in "${manual}/ostrane-dat.1" @ONLY)
add_custom_command(OUTPUT "${manual}/README.html"
                   COMMAND "${PROJECT_SOURCE_DIR}/packaging/windows/make_manual.sh" "${manual}"
                   DEPENDS README.md CHANGELOG.md docs/command.md docs/formats.md
                           packaging/windows/make_manual.sh "${manual}/ostrane-dat.1"
                   WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" VERBATIM)
add_custom_target(manual ALL DEPENDS "${manual}/README.html")
install(FILES "${manual}/README.html" "${manual}/CHANGELOG.html" "${manual}/ostrane-dat.txt"
        DESTINATION .)
install(DIRECTORY "${manual}/docs" DESTINATION .)
