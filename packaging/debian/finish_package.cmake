# Runs on the files of the package before they are packed. Debian wants manual and changes
# compressed, and the licence under a name of its own.

# Without it CPack would leave out the libraries that the package depends on, with a mere notice.
find_program(shlibdeps dpkg-shlibdeps REQUIRED)

set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(doc ${share}/doc/ostrane-dat-tool)

file(RENAME ${doc}/LICENSE ${doc}/copyright)
file(RENAME ${doc}/CHANGELOG.md ${doc}/changelog)
file(COPY_FILE ${CPACK_OSTRANE_CHANGELOG} ${doc}/changelog.Debian)

file(GLOB manuals ${share}/man/man1/*.1)
# -n leaves out name and time, so that the same files give the same package.
execute_process(COMMAND gzip -9nf ${manuals} ${doc}/changelog
                        ${doc}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)

# The same permissions under any umask.
set(everyone OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(everyone_enters ${everyone} OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
file(CHMOD_RECURSE ${CPACK_TEMPORARY_INSTALL_DIRECTORY} DIRECTORY_PERMISSIONS ${everyone_enters})
file(CHMOD_RECURSE ${share} FILE_PERMISSIONS ${everyone} DIRECTORY_PERMISSIONS ${everyone_enters})
