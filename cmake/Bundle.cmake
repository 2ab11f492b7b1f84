# Keldra.app, in the same folder as the other programs.
set(KELDRA_BUNDLE_ICON ${PROJECT_SOURCE_DIR}/packaging/macos/Keldra.icns)
target_sources(keldra PRIVATE ${KELDRA_BUNDLE_ICON})
set_source_files_properties(${KELDRA_BUNDLE_ICON} TARGET_DIRECTORY keldra
  PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
# The system offers the user the languages that the bundle names, and uses one of them in its own windows.
set(KELDRA_LANGUAGES "<string>en</string>")
file(GLOB translations CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/keldra_*.ts)
foreach(translation ${translations})
  string(REGEX REPLACE ".*/keldra_(.*)\\.ts" "\\1" language ${translation})
  # macOS names Chinese by its script.
  string(REPLACE "_" "-" language ${language})
  string(REPLACE "zh-CN" "zh-Hans" language ${language})
  string(APPEND KELDRA_LANGUAGES "<string>${language}</string>")
endforeach()
set_target_properties(keldra PROPERTIES
  OUTPUT_NAME Keldra
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in)

# The bundle with all libraries, for other Macs: cmake --build --preset release --target package
find_program(MACDEPLOYQT macdeployqt HINTS ${Qt6_DIR}/../../../bin)
add_custom_target(package
  COMMAND ${CMAKE_COMMAND} -D BUNDLE=$<TARGET_BUNDLE_DIR:keldra> -D MACDEPLOYQT=${MACDEPLOYQT}
          -D ARCHIVE=${CMAKE_BINARY_DIR}/package/Keldra-${PROJECT_VERSION}.zip
          -P ${PROJECT_SOURCE_DIR}/packaging/macos/package.cmake
  DEPENDS keldra VERBATIM)
