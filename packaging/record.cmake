# Records for uninstall.cmake what an installation makes, in installed.txt in the folder `made`. The
# first line is the prefix. Each other line is an absolute path; that of a folder ends in a slash. The
# lines of an earlier installation with the same prefix stay. CMake's install_manifest.txt lacks
# DESTDIR and the folders, splits paths at semicolons, and is overwritten by cpack.
set(record "${made}/installed.txt")
set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

# Only `cmake --install` runs a script; cpack does not.
if(DEFINED CMAKE_SCRIPT_MODE_FILE)
  set(text)
  if(EXISTS "${record}")
    file(READ "${record}" text)
  endif()
  string(FIND "${text}" "${root}\n" at)
  if(NOT at EQUAL 0)
    file(WRITE "${record}" "${root}\n")
  endif()
endif()

function(record path)
  if(NOT DEFINED CMAKE_SCRIPT_MODE_FILE)
    return()
  endif()
  file(READ "${record}" text)
  string(FIND "${text}" "\n${path}\n" at)
  if(at EQUAL -1)
    file(APPEND "${record}" "${path}\n")
  endif()
endfunction()
