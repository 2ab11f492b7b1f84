#pragma once

// How long the event loop served nothing, at most, while this object lived.

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QTimerEvent>
#include <algorithm>

class EventGap : public QObject {
 public:
  EventGap() {
    _tick.start(1, Qt::PreciseTimer, this);
    _sinceServed.start();
  }

  /// In milliseconds, with what has passed since the loop was last served.
  double longest() const { return std::max(_longest, milliseconds()); }

 protected:
  void timerEvent(QTimerEvent * /*event*/) override {
    _longest = longest();
    _sinceServed.restart();
  }

 private:
  double milliseconds() const { return static_cast<double>(_sinceServed.nsecsElapsed()) / 1e6; }

  QBasicTimer _tick;
  QElapsedTimer _sinceServed;
  double _longest = 0;
};
