# Reads the version from src/version/version.h, where v2r1m0 means 2.1.0, and its date from CHANGELOG.md.
file(STRINGS src/version/version.h version_line REGEX "version = \"v[0-9]+r[0-9]+m[0-9]+\"")
if(NOT version_line MATCHES "\"(v([0-9]+)r([0-9]+)m([0-9]+))\"")
  message(FATAL_ERROR "src/version/version.h contains no version like v2r1m0")
endif()
set(ostrane_version ${CMAKE_MATCH_1})
set(ostrane_version_numbers ${CMAKE_MATCH_2}.${CMAKE_MATCH_3}.${CMAKE_MATCH_4})

set(chapter "## ${ostrane_version} (${ostrane_version_numbers}), ")
file(STRINGS CHANGELOG.md chapters REGEX "^## ")
list(GET chapters 0 newest)
string(REPLACE "${chapter}" "" ostrane_date "${newest}")
if(NOT ostrane_date MATCHES "^20[0-9][0-9]-[0-9][0-9]-[0-9][0-9]$")
  message(FATAL_ERROR "The first chapter of CHANGELOG.md must be \"${chapter}\" and a date like "
                      "2026-11-24, not \"${newest}\"")
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS src/version/version.h CHANGELOG.md)
