# Removes the files of the last `cmake --install` of BUILD, and the program's own folders if they are
# empty afterwards.
file(STRINGS ${BUILD}/install_manifest.txt files)
foreach(file IN LISTS files)
  message(STATUS "Removing $ENV{DESTDIR}${file}")
  file(REMOVE $ENV{DESTDIR}${file})
  get_filename_component(folder ${file} DIRECTORY)
  if(folder MATCHES "/ostrane-dat-tool(/examples)?$")
    list(APPEND own_folders $ENV{DESTDIR}${folder})
  endif()
endforeach()

list(SORT own_folders ORDER DESCENDING)  # the inner ones first
list(REMOVE_DUPLICATES own_folders)
foreach(folder IN LISTS own_folders)
  execute_process(COMMAND rmdir ${folder} ERROR_QUIET)
endforeach()
