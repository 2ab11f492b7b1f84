# The Debian package, which ./package makes.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME keldra)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Keldra authors <keldra@keldra.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://keldra.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "EFI System Partitions one click away")
set(CPACK_PACKAGE_DESCRIPTION
  "Keldra lives in the system tray. A click opens a list of the EFI System
Partitions of every attached disk, where you mount one, open it in the file
manager, and unmount it. What the machine did, or why it refused, is said at
once. It is for people who dual-boot, repair boot loaders or build machines.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Without the disk service the list stays empty. Without polkit, actions that need a password are refused. The Qt
# plug-in is needed on Wayland only.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "udisks2")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "polkitd, qt6-wayland")
# Translations of Qt's own menus and dialogs.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Tests are not in the package and need not be built for it.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
include(CPack)
