# Keldra.app, in the folder of the other programs.
set(KELDRA_BUNDLE_ICON ${PROJECT_SOURCE_DIR}/packaging/macos/Keldra.icns)
target_sources(keldra PRIVATE ${KELDRA_BUNDLE_ICON})
set_source_files_properties(${KELDRA_BUNDLE_ICON} TARGET_DIRECTORY keldra
  PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(keldra PROPERTIES
  OUTPUT_NAME Keldra
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in)

# Beside the program as it finds them elsewhere.
add_custom_command(TARGET keldra POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy_directory
          ${CMAKE_BINARY_DIR}/share/keldra/translations $<TARGET_BUNDLE_CONTENT_DIR:keldra>/share/keldra/translations)
