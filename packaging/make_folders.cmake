# Makes the missing folders of an installation. CMake would give them the permissions of the umask, so
# that with 077 nobody else could start the program.
foreach(folder IN LISTS installed_folders)
  set(path "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${folder}")
  set(missing)
  while(NOT EXISTS "${path}")
    list(PREPEND missing "${path}")
    get_filename_component(path "${path}" DIRECTORY)
  endwhile()
  foreach(path IN LISTS missing)
    file(MAKE_DIRECTORY "${path}")
    file(CHMOD "${path}" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
         GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  endforeach()
endforeach()
