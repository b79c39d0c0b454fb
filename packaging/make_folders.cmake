# Makes the missing folders of an installation. CMake would give them the permissions of the umask, so
# that with 077 nobody else could start the program.
include("${CMAKE_CURRENT_LIST_DIR}/record.cmake")

function(make_folder path)
  if(EXISTS "${path}")
    return()
  endif()
  get_filename_component(parent "${path}" DIRECTORY)
  make_folder("${parent}")
  file(MAKE_DIRECTORY "${path}")
  file(CHMOD "${path}" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
       GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  record("${path}/")
endfunction()

foreach(folder IN LISTS installed_folders)
  make_folder("${root}/${folder}")
endforeach()
