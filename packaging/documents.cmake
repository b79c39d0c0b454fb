# The documents for users. In README.md a link to a document for developers becomes plain text.
file(READ README.md text)
string(REGEX REPLACE "\\]\\((LICENSE|packaging/copyright)\\)" "](copyright)" text "${text}")
set(developers CONTRIBUTING.md scripts/packages.txt docs/architecture.md docs/performance.md
    docs/reliability.md)
foreach(page IN LISTS developers)
  string(REPLACE "." "\\." page ${page})
  string(REGEX REPLACE "\\[([^]]+)\\]\\(${page}\\)" "\\1" text "${text}")
endforeach()
file(WRITE "${made}/README.md" "${text}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS README.md)

install(FILES "${made}/README.md" CHANGELOG.md packaging/copyright DESTINATION ${doc_dir})
install(FILES docs/command.md docs/formats.md docs/screenshot.png
              docs/screenshot-windows.png DESTINATION ${doc_dir}/docs)
