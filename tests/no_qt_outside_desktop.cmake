# Fails if a file of FOLDER outside its desktop/ includes a header of Qt.
file(GLOB_RECURSE sources ${FOLDER}/*.h ${FOLDER}/*.cpp)
list(FILTER sources EXCLUDE REGEX "/desktop/")
if(NOT sources)
  message(FATAL_ERROR "no sources in ${FOLDER}")
endif()

foreach(source IN LISTS sources)
  file(STRINGS ${source} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"][Qq]")
  if(includes)
    message(SEND_ERROR "${source}: ${includes}")
  endif()
endforeach()
