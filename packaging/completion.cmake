# Shell completion of the arguments of ostrane-dat.
install_folders(${data_dir}/bash-completion/completions)
install(FILES packaging/completion/ostrane-dat.bash
        DESTINATION ${data_dir}/bash-completion/completions RENAME ostrane-dat)

# Debian's zsh uses different folders in /usr and /usr/local.
install(CODE "
  set(zsh_folder ${data_dir}/zsh/site-functions)
  if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
    set(zsh_folder ${data_dir}/zsh/vendor-completions)
  endif()")
install_folders("\${zsh_folder}")
install(CODE "
  file(INSTALL [==[${PROJECT_SOURCE_DIR}/packaging/completion/_ostrane-dat]==]
       DESTINATION \"\${CMAKE_INSTALL_PREFIX}/\${zsh_folder}\")")
