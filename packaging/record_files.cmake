# Records the files that CMake has installed. Only the prefix may contain a semicolon.
include("${CMAKE_CURRENT_LIST_DIR}/record.cmake")
string(REPLACE ";${CMAKE_INSTALL_PREFIX}/" ";" files ";${CMAKE_INSTALL_MANIFEST_FILES}")
string(SUBSTRING "${files}" 1 -1 files)
foreach(file IN LISTS files)
  record("${root}/${file}")
endforeach()
