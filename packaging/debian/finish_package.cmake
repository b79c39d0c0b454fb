# Runs on the files of the package before they are packed. Debian wants manual and changes
# compressed, and the licence under a name of its own.

# Without it CPack would leave the libraries out of the package's needs and only say so.
find_program(shlibdeps dpkg-shlibdeps REQUIRED)

set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(doc ${share}/doc/ostrane-dat-tool)

file(RENAME ${doc}/LICENSE ${doc}/copyright)
file(RENAME ${doc}/CHANGELOG.md ${doc}/changelog)
file(COPY_FILE ${CPACK_OSTRANE_CHANGELOG} ${doc}/changelog.Debian)

# -n leaves out name and time, so that the same files give the same package.
execute_process(COMMAND gzip -9nf ${share}/man/man1/ostrane-dat-tool.1 ${doc}/changelog
                        ${doc}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD ${share}/man/man1/ostrane-dat-tool.1.gz ${doc}/changelog.gz ${doc}/changelog.Debian.gz
           ${doc}/copyright
     PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
