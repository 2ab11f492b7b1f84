# Files that desktops read from their standard folders.
set(desktop ${PROJECT_SOURCE_DIR}/packaging/desktop)
install(FILES ${desktop}/com.brinmoor.Keldra.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/com.brinmoor.Keldra.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY ${desktop}/icons DESTINATION ${CMAKE_INSTALL_DATADIR})

# Manual pages are installed compressed; -n makes the result reproducible.
function(install_packed file name folder)
  set(packed ${CMAKE_BINARY_DIR}/packed/${name}.gz)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packed)
  execute_process(COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/packaging/${file}
    OUTPUT_FILE ${packed} COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY
    CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/${file})
  install(FILES ${packed} DESTINATION ${folder})
endfunction()
foreach(page keldra.1 keldra-demo.1 keldra-query.1)
  install_packed(man/${page} ${page} ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
install_packed(debian/changelog changelog ${CMAKE_INSTALL_DOCDIR})
install(FILES ${PROJECT_SOURCE_DIR}/packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
