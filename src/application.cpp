#include "application.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

#include "AppDelegate/AppDelegate.h"
#include "Interface/Accessibility.h"
#include "Interface/Appearance.h"
#include "Interface/MainInterface.h"
#include "Platform/Desktop.h"
#include "Platform/Platform.h"

namespace {

int signalPipe[2] = {-1, -1};

/// A signal asks for the same end as the Quit button: in the event loop, when no row action is
/// under way.
void quitOnSignals(AppDelegate &delegate) {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) return;
  for (const int end : signalPipe) fcntl(end, F_SETFD, FD_CLOEXEC);
  auto *notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, &delegate);
  QObject::connect(notifier, &QSocketNotifier::activated, &delegate, [notifier, &delegate] {
    notifier->setEnabled(false);
    delegate.closeApp();
  });
  struct sigaction action {};
  action.sa_handler = [](int) {
    const int interrupted = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalPipe[0], &byte, 1);
    errno = interrupted;
  };
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaction(number, &action, nullptr);
}

/// The windows are dark or light as the person likes them.
void followInterfaceStyle(const Desktop &desktop) {
  const auto follow = [&desktop] {
    setDarkAppearance(isDarkInterfaceStyle(desktop.interfaceStyle()));
  };
  QObject::connect(&desktop, &Desktop::interfaceThemeChanged, qApp, follow);
  follow();
}

}  // namespace

void configureApplication() {
  QApplication::setApplicationName(QStringLiteral("keldra"));
  QApplication::setApplicationDisplayName(QStringLiteral("Keldra"));
  QApplication::setDesktopFileName(QStringLiteral("keldra"));
  // The popover is the only window, and closing it is not quitting.
  QApplication::setQuitOnLastWindowClosed(false);
  installAccessibility();
}

void connectOutlets(MainInterface &interface, AppDelegate &delegate) {
  delegate.setMenu(interface.menu());
  delegate.setWindow(interface.window());
  delegate.setInfoWindow(interface.infoWindow());
  delegate.setPopover(interface.popover());
  delegate.setTableView(interface.tableView());
  delegate.setEmptyView(interface.emptyView());
  delegate.setVersionLabel(interface.versionLabel());
  delegate.setStatusTextField(interface.statusTextField());
  delegate.setRunAtLoadCheck(interface.runAtLoadCheck());
  delegate.setShowAllDisksCheck(interface.showAllDisksCheck());
  delegate.setForceUmountCheck(interface.forceUmountCheck());

  const auto quit = [&delegate] { delegate.closeApp(); };
  QObject::connect(interface.showAllDisksCheck(), &CheckBox::acted, &delegate,
                   [&] { delegate.showAllDisks(interface.showAllDisksCheck()); });
  QObject::connect(interface.runAtLoadCheck(), &CheckBox::acted, &delegate,
                   [&] { delegate.runAtLoad(interface.runAtLoadCheck()); });
  QObject::connect(interface.infoButton(), &QPushButton::clicked, &delegate,
                   &AppDelegate::showInfo);
  QObject::connect(interface.webSiteButton(), &QPushButton::clicked, &delegate,
                   &AppDelegate::visitWebSite);
  QObject::connect(interface.quitButton(), &QPushButton::clicked, &delegate, quit);
  QObject::connect(interface.quitAction(), &QAction::triggered, &delegate, quit);
  QObject::connect(interface.openAction(), &QAction::triggered, &delegate,
                   &AppDelegate::showPopover);
}

int runApplication(Platform &platform, Desktop &desktop) {
  configureApplication();
  if (!desktop.becomeOnlyInstance()) return EXIT_SUCCESS;
  const CurrentPlatform current(platform);
  followInterfaceStyle(desktop);
  AppDelegate delegate(platform, desktop);
  MainInterface interface;
  connectOutlets(interface, delegate);
  quitOnSignals(delegate);
  delegate.applicationDidFinishLaunching();
  return QApplication::exec();
}
