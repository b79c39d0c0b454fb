# Shell completion of the arguments of ostrane-dat.
install(FILES packaging/completion/ostrane-dat.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ostrane-dat)
# Debian's zsh uses different folders in /usr and /usr/local.
install(CODE "
  set(folder site-functions)
  if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
    set(folder vendor-completions)
  endif()
  set(installed_folders ${CMAKE_INSTALL_DATADIR}/zsh/\${folder})
  set(packaging [==[${PROJECT_SOURCE_DIR}/packaging]==])
  include(\"\${packaging}/make_folders.cmake\")
  file(INSTALL \"\${packaging}/completion/_ostrane-dat\"
       DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/zsh/\${folder}\")")
