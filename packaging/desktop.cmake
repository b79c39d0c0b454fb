# The menu entry, the type of its files, the data for software centres and the icons of the program with windows.
set(icons_dir ${data_dir}/icons/hicolor)
set(icon_sizes 16 24 32 48 64 128 256)
set(folders ${icon_sizes})
list(TRANSFORM folders REPLACE "(.+)" "${icons_dir}/\\1x\\1/apps")
install_folders(${data_dir}/applications ${data_dir}/mime/packages ${data_dir}/metainfo ${icons_dir}/scalable/apps ${folders})

install(FILES packaging/ostrane-dat-tool.desktop DESTINATION ${data_dir}/applications)
# The type of ostrane.dat, by its name in any case.
install(FILES packaging/ostrane-dat-tool-mime.xml DESTINATION ${data_dir}/mime/packages
        RENAME ostrane-dat-tool.xml)
configure_file(packaging/ostrane-dat-tool.metainfo.xml.in
               "${made}/example.ostrane.dat_tool.metainfo.xml" @ONLY)
install(FILES "${made}/example.ostrane.dat_tool.metainfo.xml" DESTINATION ${data_dir}/metainfo)

foreach(size IN LISTS icon_sizes)
  install(FILES packaging/icons/ostrane-dat-tool-${size}.png
          DESTINATION ${icons_dir}/${size}x${size}/apps RENAME ostrane-dat-tool.png)
endforeach()
install(FILES packaging/icons/ostrane-dat-tool.svg DESTINATION ${icons_dir}/scalable/apps)
