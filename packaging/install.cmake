# Rules for `cmake --install`. The program reads iconlist.csv from its own folder. So it is installed in
# a separate folder, with a link in bin/.
include(GNUInstallDirs)

set(programs ostrane-dat-tool)
if(TARGET ostrane-dat)
  list(APPEND programs ostrane-dat)
endif()

if(WIN32)
  install(TARGETS ${programs} RUNTIME DESTINATION .)
  install(FILES LICENSE DESTINATION .)
  return()
endif()

set(program_dir ${CMAKE_INSTALL_LIBDIR}/ostrane-dat-tool)
set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/ostrane-dat-tool)
set(examples_dir ${doc_dir}/examples)
set(data_dir ${CMAKE_INSTALL_DATADIR})
set(icons_dir ${data_dir}/icons/hicolor)
set(icon_sizes 16 24 32 48 64 128 256)
set(made "${CMAKE_BINARY_DIR}/packaging")

set(installed_folders ${CMAKE_INSTALL_BINDIR} ${program_dir} ${CMAKE_INSTALL_MANDIR}/man1
    ${data_dir}/applications ${data_dir}/metainfo ${examples_dir} ${icons_dir}/scalable/apps)
foreach(size IN LISTS icon_sizes)
  list(APPEND installed_folders ${icons_dir}/${size}x${size}/apps)
endforeach()
if(TARGET ostrane-dat)
  list(APPEND installed_folders ${data_dir}/bash-completion/completions)
endif()
install(CODE "
  set(made [==[${made}]==])
  set(installed_folders ${installed_folders})")
install(SCRIPT packaging/make_folders.cmake)

file(MAKE_DIRECTORY "${made}/bin")
foreach(program IN LISTS programs)
  file(RELATIVE_PATH link_target "${CMAKE_INSTALL_FULL_BINDIR}"
       "${CMAKE_INSTALL_FULL_LIBDIR}/ostrane-dat-tool/${program}")
  file(CREATE_LINK "${link_target}" "${made}/bin/${program}" SYMBOLIC)
endforeach()

configure_file(packaging/ostrane-dat-tool.metainfo.xml.in
               "${made}/example.ostrane.dat_tool.metainfo.xml" @ONLY)
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
if(TARGET ostrane-dat)
  include(packaging/completion.cmake)
endif()

install(FILES packaging/ostrane-dat-tool.desktop
        DESTINATION ${data_dir}/applications)
install(FILES "${made}/example.ostrane.dat_tool.metainfo.xml"
        DESTINATION ${data_dir}/metainfo)
install(FILES LICENSE CHANGELOG.md README.md DESTINATION ${doc_dir})

foreach(size IN LISTS icon_sizes)
  install(FILES packaging/icons/ostrane-dat-tool-${size}.png
          DESTINATION ${icons_dir}/${size}x${size}/apps RENAME ostrane-dat-tool.png)
endforeach()
install(FILES packaging/icons/ostrane-dat-tool.svg DESTINATION ${icons_dir}/scalable/apps)

# The program reads iconlist.csv from its own folder.
install(FILES "${CMAKE_BINARY_DIR}/sample/ostrane.dat" "${CMAKE_BINARY_DIR}/sample/iconlist.csv"
        DESTINATION ${examples_dir})
install(FILES "${CMAKE_BINARY_DIR}/sample/iconlist.csv" DESTINATION ${program_dir})
install(SCRIPT packaging/record_files.cmake)

include(packaging/debian.cmake)
include(CPack)
