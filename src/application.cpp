#include "application.h"

#include <sys/resource.h>

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "AppDelegate/AppDelegate.h"
#include "Application/End.h"
#include "Application/Languages.h"
#include "Application/Outlets.h"
#include "Interface/Accessibility.h"
#include "Interface/Appearance.h"
#include "Interface/MainInterface.h"
#include "Platform/Desktop.h"
#include "Platform/Platform.h"

namespace {

/// Windows are dark or light as the user prefers.
void followInterfaceStyle(const Desktop &desktop) {
  const auto follow = [&desktop] {
    setDarkAppearance(isDarkInterfaceStyle(desktop.interfaceStyle()), desktop.accentColor());
  };
  QObject::connect(&desktop, &Desktop::interfaceThemeChanged, qApp, follow);
  follow();
}

}  // namespace

bool mayOpenEnoughFiles() {
  constexpr rlim_t kEnough = 64;
  rlimit limit{};
  if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= kEnough) return true;
  limit.rlim_cur = std::min(kEnough, limit.rlim_max);
  if (limit.rlim_cur == kEnough && setrlimit(RLIMIT_NOFILE, &limit) == 0) return true;
  std::fprintf(stderr, "keldra: needs %d open files, and may open %d (ulimit -n)\n",
               static_cast<int>(kEnough), static_cast<int>(limit.rlim_cur));
  return false;
}

void configureApplication() {
  QApplication::setApplicationName(QStringLiteral("keldra"));
  QApplication::setApplicationDisplayName(QStringLiteral("Keldra"));
  QApplication::setDesktopFileName(QStringLiteral("com.brinmoor.Keldra"));
  // Closing the popover, the only window, must not quit the program.
  QApplication::setQuitOnLastWindowClosed(false);
  loadTranslations();
  installAccessibility();
}

int runApplication(Platform &platform, Desktop &desktop) {
  if (!desktop.becomeOnlyInstance()) return EXIT_SUCCESS;
  const CurrentPlatform current(platform);
  followInterfaceStyle(desktop);
  AppDelegate delegate(platform, desktop);
  MainInterface interface;
  connectOutlets(interface, delegate);
  quitWithTheSystem(delegate);
  delegate.applicationDidFinishLaunching();
  const int status = QApplication::exec();
  endSoon();  // in case the destructors of all these objects block
  return status;
}
