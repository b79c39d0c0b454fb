# Copies the libraries and plugins that ostrane-dat-tool needs beside it. The installation takes them
# from there.
set_target_properties(ostrane-dat-tool ostrane_desktop PROPERTIES SHARES_RUNTIME ON)
set(libraries "${CMAKE_BINARY_DIR}/libraries")
set(copies)

# copy_library(FILE FOLDER): copies it, without debugging information, to this folder of the programs.
function(copy_library file folder)
  get_filename_component(name "${file}" NAME)
  set(copy "${libraries}/${folder}/${name}")
  add_custom_command(OUTPUT "${copy}"
                     COMMAND "${CMAKE_COMMAND}" -E make_directory "${libraries}/${folder}"
                     COMMAND "${CMAKE_STRIP}" --strip-unneeded -o "${copy}" "${file}"
                     COMMAND "${CMAKE_COMMAND}" -E make_directory
                             "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder}"
                     COMMAND "${CMAKE_COMMAND}" -E copy "${copy}"
                             "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder}/${name}"
                     DEPENDS "${file}" VERBATIM)
  set(copies "${copies};${copy}" PARENT_SCOPE)
endfunction()

foreach(library Core Gui Widgets)
  get_target_property(file Qt6::${library} IMPORTED_LOCATION_RELEASE)
  copy_library("${file}" .)
endforeach()
foreach(plugin QWindowsIntegrationPlugin/platforms QJpegPlugin/imageformats)
  get_filename_component(folder ${plugin} NAME)
  get_filename_component(plugin ${plugin} DIRECTORY)
  get_target_property(file Qt6::${plugin} IMPORTED_LOCATION_RELEASE)
  copy_library("${file}" ${folder})
endforeach()
foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}.dll
                  OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
  copy_library("${file}" .)
endforeach()
add_custom_target(libraries ALL DEPENDS ${copies})
