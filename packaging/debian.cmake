# The Debian package that `cpack` makes.
set(ostrane_maintainer
    "The Ostrane.dat-tool developers <ostrane-dat-tool@users.noreply.example>")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ostrane-dat-tool)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Below 1, so that a package of Debian's own would be the newer one.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0bookworm1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${ostrane_maintainer})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"viewer and builder for the data archive of a game
Opens the archive ostrane.dat: lists its entries, shows and animates the
pictures of its icon files in the game's 256 colours, shows palettes and
texts, extracts all entries into a folder, builds a new archive from the
files of a folder, and compares lists of entries.
.
This is the release that calls itself ${ostrane_version}.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The windows are laid out for the widths of these letters.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-qpa-plugins, qt6-wayland")

configure_file(packaging/debian/changelog.in ${CMAKE_BINARY_DIR}/packaging/changelog @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/packaging/debian/finish_package.cmake)
set(CPACK_OSTRANE_CHANGELOG ${CMAKE_BINARY_DIR}/packaging/changelog)
