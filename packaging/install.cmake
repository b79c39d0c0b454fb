# Rules for `cmake --install`. The programs read iconlist.csv from their own folder. So they are
# installed in a separate folder, with links in bin/.
include(GNUInstallDirs)

set(programs)
foreach(program ostrane-dat-tool ostrane-dat)
  if(TARGET ${program})
    list(APPEND programs ${program})
  endif()
endforeach()
if(NOT programs)
  return()
endif()

if(WIN32)
  include(packaging/windows/install.cmake)
  return()
endif()

list(GET programs 0 package)
set(program_dir ${CMAKE_INSTALL_LIBDIR}/${package})
set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package})
set(examples_dir ${doc_dir}/examples)
set(data_dir ${CMAKE_INSTALL_DATADIR})
set(made "${CMAKE_BINARY_DIR}/packaging")

# install_folders(FOLDER...): makes these folders under the prefix during the installation.
function(install_folders)
  install(CODE "
    set(made [==[${made}]==])
    set(installed_folders ${ARGN})")
  install(SCRIPT packaging/make_folders.cmake)
endfunction()

install_folders(${CMAKE_INSTALL_BINDIR} ${program_dir} ${CMAKE_INSTALL_MANDIR}/man1 ${doc_dir}/docs
                ${examples_dir})
file(MAKE_DIRECTORY "${made}/bin")
foreach(program IN LISTS programs)
  file(RELATIVE_PATH link_target "${CMAKE_INSTALL_FULL_BINDIR}"
       "${CMAKE_INSTALL_FULL_LIBDIR}/${package}/${program}")
  file(CREATE_LINK "${link_target}" "${made}/bin/${program}" SYMBOLIC)
endforeach()

# The manuals name folders below the prefix, which is only known during the installation.
set(program_folder @program_folder@)
set(examples_folder @examples_folder@)
foreach(program IN LISTS programs)
  configure_file(packaging/${program}.1.in "${made}/${program}.1.in" @ONLY)
  install(CODE "
    set(program_folder \"\${CMAKE_INSTALL_PREFIX}/${program_dir}\")
    set(examples_folder \"\${CMAKE_INSTALL_PREFIX}/${examples_dir}\")
    configure_file(\"\${made}/${program}.1.in\" \"\${made}/${program}.1\" @ONLY)")
  install(TARGETS ${program} RUNTIME DESTINATION ${program_dir})
  install(FILES "${made}/bin/${program}" DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES "${made}/${program}.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()

include(packaging/documents.cmake)
if(TARGET ostrane-dat)
  include(packaging/completion.cmake)
endif()
if(TARGET ostrane-dat-tool)
  include(packaging/desktop.cmake)
endif()

install(FILES "${CMAKE_BINARY_DIR}/sample/ostrane.dat" "${CMAKE_BINARY_DIR}/sample/iconlist.csv"
        DESTINATION ${examples_dir})
install(FILES "${CMAKE_BINARY_DIR}/sample/iconlist.csv" DESTINATION ${program_dir})
install(SCRIPT packaging/record_files.cmake)

include(packaging/debian.cmake)
include(CPack)
