# Keldra.app, in the folder of the other programs.
set(KELDRA_BUNDLE_ICON ${PROJECT_SOURCE_DIR}/packaging/macos/Keldra.icns)
target_sources(keldra PRIVATE ${KELDRA_BUNDLE_ICON})
set_source_files_properties(${KELDRA_BUNDLE_ICON} TARGET_DIRECTORY keldra
  PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(keldra PROPERTIES
  OUTPUT_NAME Keldra
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in)

# The bundle with all that it needs, to be handed on: cmake --build --preset release --target package
find_program(MACDEPLOYQT macdeployqt HINTS ${Qt6_DIR}/../../../bin)
add_custom_target(package
  COMMAND ${CMAKE_COMMAND} -D BUNDLE=$<TARGET_BUNDLE_DIR:keldra> -D MACDEPLOYQT=${MACDEPLOYQT}
          -D ARCHIVE=${CMAKE_BINARY_DIR}/package/Keldra-${PROJECT_VERSION}.zip
          -P ${PROJECT_SOURCE_DIR}/packaging/macos/package.cmake
  DEPENDS keldra VERBATIM)
