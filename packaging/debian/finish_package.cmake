# Runs before the package is packed. Debian requires compressed manuals and changelogs.

# Without dpkg-shlibdeps CPack would only print a notice and omit the library dependencies.
find_program(shlibdeps dpkg-shlibdeps REQUIRED)

# cpack reads the paths of the files in the locale.
set(locale "$ENV{LANG}")
foreach(name LC_CTYPE LC_ALL)
  if(NOT "$ENV{${name}}" STREQUAL "")
    set(locale "$ENV{${name}}")
  endif()
endforeach()
if("${CPACK_TEMPORARY_INSTALL_DIRECTORY}" MATCHES "[^ -~]" AND
   NOT "${locale}" MATCHES "[Uu][Tt][Ff]-?8")
  message(FATAL_ERROR "The folder's path needs a locale with UTF-8: LC_ALL=C.UTF-8 cpack")
endif()

set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
set(doc "${share}/doc/${CPACK_PACKAGE_NAME}")

file(RENAME "${doc}/CHANGELOG.md" "${doc}/changelog")
file(READ "${doc}/README.md" text)
string(REPLACE "](CHANGELOG.md)" "](changelog.gz)" text "${text}")
file(WRITE "${doc}/README.md" "${text}")
file(COPY_FILE "${CPACK_OSTRANE_CHANGELOG}" "${doc}/changelog.Debian")

set(compressed doc/${CPACK_PACKAGE_NAME}/changelog doc/${CPACK_PACKAGE_NAME}/changelog.Debian)
foreach(program IN LISTS CPACK_OSTRANE_PROGRAMS)
  list(APPEND compressed man/man1/${program}.1)
endforeach()
# -n omits name and time, which makes the package reproducible.
execute_process(COMMAND gzip -9nf ${compressed} WORKING_DIRECTORY "${share}"
                COMMAND_ERROR_IS_FATAL ANY)
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  set(ENV{SOURCE_DATE_EPOCH} ${CPACK_OSTRANE_TIME})
endif()

# The same permissions under any umask.
set(everyone OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(everyone_enters ${everyone} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
file(CHMOD_RECURSE "${CPACK_TEMPORARY_INSTALL_DIRECTORY}" DIRECTORY_PERMISSIONS ${everyone_enters})
file(CHMOD_RECURSE "${share}" FILE_PERMISSIONS ${everyone} DIRECTORY_PERMISSIONS ${everyone_enters})
