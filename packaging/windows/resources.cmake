# add_windows_resources(TARGET DESCRIPTION): gives a program its icon, manifest and version record.
enable_language(RC)
set(windows_files "${CMAKE_CURRENT_LIST_DIR}")

function(add_windows_resources program description)
  string(REPLACE "." "," numbers "${PROJECT_VERSION},0")
  set(icon "${PROJECT_SOURCE_DIR}/packaging/icons/ostrane-dat-tool.ico")
  set(manifest "${windows_files}/program.manifest")
  set(made "${CMAKE_CURRENT_BINARY_DIR}/${program}.rc")
  configure_file("${windows_files}/program.rc.in" "${made}" @ONLY)
  target_sources(${program} PRIVATE "${made}")
  set_source_files_properties("${made}" TARGET_DIRECTORY ${program} PROPERTIES
                              OBJECT_DEPENDS "${icon};${manifest}")
endfunction()
