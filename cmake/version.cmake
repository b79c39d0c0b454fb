# The one place of the version is the source; v2r1m0 there is 2.1.0 as numbers.
file(STRINGS src/state/version.h version_line REGEX "version = \"v[0-9]+r[0-9]+m[0-9]+\"")
if(NOT version_line MATCHES "\"(v([0-9]+)r([0-9]+)m([0-9]+))\"")
  message(FATAL_ERROR "src/state/version.h holds no version like v2r1m0")
endif()
set(ostrane_version ${CMAKE_MATCH_1})
set(ostrane_version_numbers ${CMAKE_MATCH_2}.${CMAKE_MATCH_3}.${CMAKE_MATCH_4})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS src/state/version.h)
