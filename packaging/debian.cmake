# The Debian package that `cpack` makes.
set(ostrane_maintainer
    "The Ostrane.dat-tool developers <ostrane-dat-tool@users.noreply.example>")

# The release that the package is built on, such as bookworm or jammy.
cmake_host_system_information(RESULT system QUERY DISTRIB_INFO)
set(ostrane_distribution unstable)
if(system_VERSION_CODENAME)
  set(ostrane_distribution ${system_VERSION_CODENAME})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME ${package})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Lower than 1, so that a package of the distribution itself counts as newer.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0${ostrane_distribution}1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${ostrane_maintainer})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(TARGET ostrane-dat-tool)
  set(other_package ostrane-dat)
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"viewer and builder for the data archive of a game
Opens the archive ostrane.dat: lists its entries, shows and animates the
pictures of its icon files in the game's 256 colours, shows palettes and
texts, extracts all entries into a folder, builds a new archive from the
files of a folder, and compares lists of entries. The program ostrane-dat
does so in scripts, and converts icons to PNG and back.
.
The window shows this version as ${ostrane_version}.")
  # The layout of the windows fits the widths of these letters.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
  # For desktops without an X server.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
else()
  set(other_package ostrane-dat-tool)
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"command-line program for the data archive of a game
Lists, extracts, builds, changes, compares and checks the archive
ostrane.dat, and converts its icons to PNG and back. The package
ostrane-dat-tool contains this program and one with windows.
.
ostrane-dat --version prints this version as ${ostrane_version}.")
endif()
set(CPACK_DEBIAN_PACKAGE_CONFLICTS ${other_package})
set(CPACK_DEBIAN_PACKAGE_REPLACES ${other_package})

# Debian's form of a date, such as "Tue, 24 Nov 2026 12:00:00 +0000".
execute_process(COMMAND date -u -R -d "${ostrane_date} 12:00"
                OUTPUT_VARIABLE ostrane_debian_date OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
configure_file(packaging/debian/changelog.in "${made}/changelog" @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/debian/finish_package.cmake")
set(CPACK_OSTRANE_CHANGELOG "${made}/changelog")
set(CPACK_OSTRANE_PROGRAMS ${programs})

# The time of all files in the package, so that the same sources give the same package.
execute_process(COMMAND date -u -d "${ostrane_date} 12:00" +%s
                OUTPUT_VARIABLE CPACK_OSTRANE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
