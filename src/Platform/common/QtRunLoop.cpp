#include "Platform/common/QtRunLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <utility>

void QtRunLoop::run(const bool &finished) {
  QEventLoop loop;
  QEventLoop *outer = std::exchange(_innermost, &loop);
  while (!finished) loop.processEvents(QEventLoop::WaitForMoreEvents);
  _innermost = outer;
}

void QtRunLoop::stop() {
  if (_innermost != nullptr) _innermost->wakeUp();
}

void QtRunLoop::servePending() {
  QCoreApplication::processEvents();
}
