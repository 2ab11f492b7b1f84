#include "Platform/common/QtRunLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <utility>

void QtRunLoop::run(const bool &finished) {
  QEventLoop loop;
  // A nested loop, such as a dialog's, may have consumed the wake-up that was meant for this one.
  QTimer lookAgain;
  lookAgain.start(kLookAgain);
  QEventLoop *outer = std::exchange(_innermost, &loop);
  while (!finished) loop.processEvents(QEventLoop::WaitForMoreEvents);
  _innermost = outer;
}

void QtRunLoop::stop() {
  if (_innermost != nullptr) _innermost->wakeUp();
}

void QtRunLoop::servePending() {
  QTimer moment;
  moment.setSingleShot(true);
  moment.start(_moment);
  while (moment.isActive()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
