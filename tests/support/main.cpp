// Runs all tests of an executable inside an application, without a display and without the user's
// settings, session or autostart folder.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>

#include "application.h"

#ifdef __linux__
#include "Platform/linux/VolumeHelper.h"
#endif

int main(int argc, char **argv) {
#ifdef __linux__
  // A backend starts this executable as its helper for volumes.
  if (const auto status = runAsVolumeHelper()) return *status;
#endif
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir home;
  for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
    qputenv(variable, home.path().toLocal8Bit());
  }
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QLocale::setDefault(QLocale(QLocale::English));  // whatever the user's language is
  configureApplication();
  return RUN_ALL_TESTS();
}
