#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QTimer>

#include "AppDelegate/AppDelegate.h"
#include "Foundation/Error.h"
#include "Foundation/SystemLog.h"
#include "SavedData/ManagedObjectContext.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kLongestRest = 5s;

/// Used when no dialog may be shown: an error counts as handled, which keeps the program running.
class UnattendedApplication : public Application {
 public:
  bool presentError(const Error &error) override {
    systemLog(error.description());
    return true;
  }
};

}  // namespace

void AppDelegate::closeApp() {
  _isAskedToEnd = true;
  // The queue is held while a row action is under way, which may be for ever.
  _mainQueue.async([this] { endIfAsked([] { QCoreApplication::exit(0); }); });
  if (!_busyPartition) return;
  QTimer::singleShot(kLongestRest, this,
                     [this] { endIfAsked([this] { emit endsInRowAction(); }); });
}

void AppDelegate::endIfAsked(const std::function<void()> &end) {
  if (std::exchange(_isAskedToEnd, false) && mayTerminate()) end();
}

bool AppDelegate::mayTerminate() {
  if (_isTerminating) return false;
  const QScopedValueRollback underWay(_isTerminating, true);
  return applicationShouldTerminate(_application) == TerminateReply::Now;
}

bool AppDelegate::sessionMayEnd(const std::function<bool()> &mayAsk) {
  if (!_managedObjectContext) return true;
  // The session waits for the answer. During a row action a dialog would get no input, and one alert
  // at a time is enough.
  if (!_busyPartition && !_isTerminating && mayAsk()) return mayTerminate();
  UnattendedApplication unattended;
  return applicationShouldTerminate(unattended) == TerminateReply::Now;
}

TerminateReply AppDelegate::applicationShouldTerminate(Application &application) {
  if (!_managedObjectContext) return TerminateReply::Now;
  if (!_managedObjectContext->commitEditing()) {
    systemLog(u"AppDelegate:applicationShouldTerminate: unable to commit editing to terminate"_s);
    return TerminateReply::Cancel;
  }
  if (!_managedObjectContext->hasChanges()) return TerminateReply::Now;
  const std::optional<Error> error = _managedObjectContext->save();
  if (!error) return TerminateReply::Now;
  if (application.presentError(*error)) return TerminateReply::Cancel;
  // Deliberate: the first button keeps the program running and the second one quits, whatever their
  // titles say.
  const int answer = Application::runAlert(
      tr("Could not save changes while quitting. Quit anyway?"),
      tr("Quitting now will lose any changes you have made since the last successful save"),
      {tr("Quit anyway"), tr("Cancel")});
  return answer == Application::kAlertFirstButtonReturn ? TerminateReply::Cancel
                                                        : TerminateReply::Now;
}
