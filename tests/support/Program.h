#pragma once

// The whole program, with real widgets and an open popover, on the test's platform.

#include <QTest>
#include <QVariantAnimation>

#include "AppDelegate/AppDelegate.h"
#include "Application/Outlets.h"
#include "ESPTableCellView.h"
#include "Interface/MainInterface.h"
#include "Interface/RowButton.h"
#include "Interface/RowTextField.h"
#include "Interface/TextField.h"
#include "Platform/simulated/SimulatedDesktop.h"

class Program {
 public:
  explicit Program(Platform &platform) : _current(platform), delegate(platform, desktop) {
    connectOutlets(interface, delegate);
    delegate.applicationDidFinishLaunching();
    delegate.showPopover();
    settle();
  }

  /// Serves the event loop until no event is pending.
  static void settle() {
    for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
  }

  QStringList listed() const {
    QStringList names;
    for (const RowRecord &record : delegate.tableViewContents()) names += record.ESP;
    return names;
  }
  /// Null when there is no such row.
  ESPTableCellView *cell(qint64 row) const {
    // Scrolls, because the screen may be too small for all rows.
    interface.tableView()->scrollRowToVisible(row);
    return qobject_cast<ESPTableCellView *>(interface.tableView()->cellAtRow(row));
  }
  ESPTableCellView *rowOf(const QString &name) const {
    const qsizetype row = listed().indexOf(name);
    return row < 0 ? nullptr : cell(row);
  }
  QString title(const QString &name) const { return rowOf(name)->mountButton()->title(); }

  static void click(RowButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
  void click(const QString &name) { click(rowOf(name)->mountButton()); }

  /// The status line's text after the fade.
  QString status() {
    settle();
    for (int fade = 0; fade < 2; ++fade) {
      for (auto *animation : interface.statusTextField()->findChildren<QVariantAnimation *>()) {
        animation->setCurrentTime(animation->duration());
      }
    }
    return interface.statusTextField()->stringValue();
  }
  /// Waits until the status line shows the text.
  bool says(const QString &text) {
    return QTest::qWaitFor([&] { return status() == text; }, 10000);
  }

 private:
  const CurrentPlatform _current;

 public:
  SimulatedDesktop desktop;
  AppDelegate delegate;
  MainInterface interface;
};
