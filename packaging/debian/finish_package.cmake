# Runs before the package is packed. Debian requires compressed manuals and changelogs, and the licence
# in a file "copyright".

# Without dpkg-shlibdeps CPack would only print a notice and omit the library dependencies.
find_program(shlibdeps dpkg-shlibdeps REQUIRED)

set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(doc ${share}/doc/ostrane-dat-tool)

file(RENAME ${doc}/LICENSE ${doc}/copyright)
file(RENAME ${doc}/CHANGELOG.md ${doc}/changelog)
file(COPY_FILE ${CPACK_OSTRANE_CHANGELOG} ${doc}/changelog.Debian)

file(GLOB manuals ${share}/man/man1/*.1)
# -n omits name and time, which makes the package reproducible.
execute_process(COMMAND gzip -9nf ${manuals} ${doc}/changelog
                        ${doc}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)

# The same permissions under any umask.
set(everyone OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(everyone_enters ${everyone} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
file(CHMOD_RECURSE ${CPACK_TEMPORARY_INSTALL_DIRECTORY} DIRECTORY_PERMISSIONS ${everyone_enters})
file(CHMOD_RECURSE ${share} FILE_PERMISSIONS ${everyone} DIRECTORY_PERMISSIONS ${everyone_enters})
