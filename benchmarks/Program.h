#pragma once

// The whole program, with real widgets and an open popover.

#include <QObject>
#include <functional>
#include <optional>

#include "AppDelegate/AppDelegate.h"
#include "Interface/MainInterface.h"
#include "Platform/simulated/SimulatedDesktop.h"
#include "Time.h"

/// Serves the event loop until the condition holds. Throws std::runtime_error with the text `what`
/// if that takes too long.
void waitUntil(const std::function<bool()> &condition, const QString &what);

/// When a row's button was first painted with this title since this object was made.
class PaintedTitle : public QObject {
 public:
  explicit PaintedTitle(const QString &title);
  std::optional<Instant> when() const { return _when; }
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QString _title;
  std::optional<Instant> _when;
};

class Program {
 public:
  /// `platform` must be `Platform::current()`.
  explicit Program(Platform &platform);

  void setShowsAll(bool showsAll);
  void refreshLists() { _delegate.refreshLists(); }

  /// The BSD name of a device ("/dev/loop0p1") that has a row.
  QString nameOf(const QString &device) const;
  void scrollTo(const QString &name);
  /// Clicks the row's mount button. Returns when the action is over.
  void click(const QString &name);

 private:
  qint64 rowOf(const QString &name) const;

  SimulatedDesktop _desktop;
  AppDelegate _delegate;
  MainInterface _interface;
};
