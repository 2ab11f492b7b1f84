#include "application.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QLibraryInfo>
#include <QPushButton>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "AppDelegate/AppDelegate.h"
#include "Interface/Accessibility.h"
#include "Interface/Appearance.h"
#include "Interface/MainInterface.h"
#include "Platform/Desktop.h"
#include "Platform/Platform.h"

using namespace Qt::StringLiterals;

// Outside of every namespace, as Qt asks.
static void haveTranslations() {
  Q_INIT_RESOURCE(translations);
}

namespace {

/// What a person who has asked for the end is made to wait at most, in seconds, also when the event
/// loop is not served.
constexpr unsigned kLongestEnd = 5;

int signalPipe[2] = {-1, -1};

/// Without waiting for whoever reads at the other end: a full pipe says all there is to say.
bool openSignalPipe() {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0) return false;
  for (const int end : signalPipe) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  return true;
}

void catchSignal(int number) {
  struct sigaction action {};
  // A program that was started by nohup outlives its terminal.
  if (sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = [](int) {
    const int interrupted = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalPipe[0], &byte, 1);
    alarm(kLongestEnd);
    errno = interrupted;
  };
  sigaction(number, &action, nullptr);
}

/// In the event loop, as often as it comes: the person may want to stay.
void quitOnSignals(AppDelegate &delegate) {
  if (!openSignalPipe()) return;
  auto *notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, &delegate);
  QObject::connect(notifier, &QSocketNotifier::activated, &delegate, [&delegate] {
    std::array<char, 64> signalsSoFar{};
    [[maybe_unused]] const auto count =
        read(signalPipe[1], signalsSoFar.data(), signalsSoFar.size());
    alarm(0);  // the delegate sees to it
    delegate.closeApp();
  });
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) catchSignal(number);
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
    if (!_delegate.sessionMayEnd([] { return true; })) {
      event->ignore();
      return true;
    }
    // Qt ends its own loops, and not the wait of a row action.
    QTimer::singleShot(std::chrono::seconds(kLongestEnd), [] { std::_Exit(EXIT_SUCCESS); });
    return false;
  }

 private:
  AppDelegate &_delegate;
};

/// The windows are dark or light as the person likes them.
void followInterfaceStyle(const Desktop &desktop) {
  const auto follow = [&desktop] {
    setDarkAppearance(isDarkInterfaceStyle(desktop.interfaceStyle()), desktop.accentColor());
  };
  QObject::connect(&desktop, &Desktop::interfaceThemeChanged, qApp, follow);
  follow();
}

bool loadTranslation(const QString &name, const QString &language, const QString &folder) {
  auto *translation = new QTranslator(qApp);
  const QString file = name + u'_' + QString(language).replace(u'-', u'_');
  return translation->load(file, folder) && QApplication::installTranslator(translation);
}

/// A mere "zh" stands for simplified Chinese, also after a "zh_TW".
bool isInAnotherScript(const QLocale &locale) {
  const QLocale preferred;
  return locale.language() == preferred.language() && locale.script() != preferred.script();
}

bool speak(const QLocale &locale, const QString &language) {
  if (!loadTranslation(u"keldra"_s, language, u":/translations"_s)) return false;
  loadTranslation(u"qtbase"_s, language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  // Qt takes it from its own translation, which may not be there.
  QApplication::setLayoutDirection(locale.textDirection());
  return true;
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

void loadTranslations() {
  for (const QString &language : QLocale().uiLanguages()) {
    const QLocale locale(language);
    if (locale.language() == QLocale::English) return;
    if (!isInAnotherScript(locale) && speak(locale, language)) return;
  }
}

void configureApplication() {
  haveTranslations();
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
  delegate.setListNotice(interface.listNotice());
  delegate.setTrayNotice(interface.trayNotice());
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
  QObject::connect(&delegate, &AppDelegate::endsInRowAction, [] { std::_Exit(EXIT_SUCCESS); });
  quitOnSignals(delegate);
  new PlatformQuit(delegate);
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &delegate,
                   [&delegate](QSessionManager &session) {
                     // It starts by itself: one that a session manager starts as well would open the popover.
                     session.setRestartHint(QSessionManager::RestartNever);
                     const auto mayAsk = [&session] { return session.allowsInteraction(); };
                     if (!delegate.sessionMayEnd(mayAsk)) session.cancel();
                   });
  QObject::connect(
      qApp, &QGuiApplication::saveStateRequest, &delegate,
      [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
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
  alarm(kLongestEnd);  // for whatever the end of all these objects may wait for
  return status;
}
