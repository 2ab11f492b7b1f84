#include "application.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QLibraryInfo>
#include <QPushButton>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTranslator>
#include <array>
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

/// In the event loop, as often as it comes: the person may want to stay.
void quitOnSignals(AppDelegate &delegate) {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) return;
  for (const int end : signalPipe) fcntl(end, F_SETFD, FD_CLOEXEC);
  auto *notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, &delegate);
  QObject::connect(notifier, &QSocketNotifier::activated, &delegate, [&delegate] {
    std::array<char, 64> signalsSoFar{};
    [[maybe_unused]] const auto count =
        read(signalPipe[1], signalsSoFar.data(), signalsSoFar.size());
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

/// What the platform quits the program by, which would end it unasked.
class PlatformQuit : public QObject {
 public:
  explicit PlatformQuit(AppDelegate &delegate) : QObject(&delegate), _delegate(delegate) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject *watched, QEvent *event) override {
    if (watched != qApp || event->type() != QEvent::Quit) return false;
    // Who ends a session wants the answer now, and takes a later one for an objection.
    if (_delegate.sessionMayEnd([] { return true; })) return false;
    event->ignore();
    return true;
  }

 private:
  AppDelegate &_delegate;
};

/// The windows are dark or light as the person likes them.
void followInterfaceStyle(const Desktop &desktop) {
  const auto follow = [&desktop] {
    setDarkAppearance(isDarkInterfaceStyle(desktop.interfaceStyle()));
  };
  QObject::connect(&desktop, &Desktop::interfaceThemeChanged, qApp, follow);
  follow();
}

bool loadTranslation(const QString &name, const QString &folder) {
  auto *translation = new QTranslator(qApp);
  if (!translation->load(QLocale(), name, QStringLiteral("_"), folder)) return false;
  return QApplication::installTranslator(translation);
}

/// The program's own words in the desktop's language, and with them Qt's, if it has them.
void loadTranslations() {
  const QString folder =
      QApplication::applicationDirPath() + QStringLiteral("/../share/keldra/translations");
  if (!loadTranslation(QStringLiteral("keldra"), folder)) return;
  loadTranslation(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

}  // namespace

void configureApplication() {
  QApplication::setApplicationName(QStringLiteral("keldra"));
  QApplication::setApplicationDisplayName(QStringLiteral("Keldra"));
  QApplication::setDesktopFileName(QStringLiteral("com.brinmoor.Keldra"));
  // The popover is the only window, and closing it is not quitting.
  QApplication::setQuitOnLastWindowClosed(false);
  loadTranslations();
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

void quitWithTheSystem(AppDelegate &delegate) {
  quitOnSignals(delegate);
  new PlatformQuit(delegate);
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &delegate,
                   [&delegate](QSessionManager &session) {
                     const auto mayAsk = [&session] { return session.allowsInteraction(); };
                     if (!delegate.sessionMayEnd(mayAsk)) session.cancel();
                   });
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
  return QApplication::exec();
}
