#pragma once

// The whole program, real widgets and all, on a platform of the test's.

#include <QVariantAnimation>

#include "AppDelegate/AppDelegate.h"
#include "ESPTableCellView.h"
#include "Interface/MainInterface.h"
#include "Interface/RowTextField.h"
#include "Platform/simulated/SimulatedDesktop.h"
#include "application.h"
#include "disks/DiskTest.h"

class Program {
 public:
  explicit Program(Platform &platform) : _current(platform), delegate(platform, desktop) {
    connectOutlets(interface, delegate);
    delegate.applicationDidFinishLaunching();
    delegate.showPopover();
    QCoreApplication::processEvents();
  }

  ESPTableCellView *rowOf(const QString &name) const {
    TableView *table = interface.tableView();
    for (qint64 row = 0; row < table->numberOfRows(); ++row) {
      if (delegate.tableViewContents()[row].ESP != name) continue;
      table->scrollRowToVisible(row);
      return qobject_cast<ESPTableCellView *>(table->cellAtRow(row));
    }
    return nullptr;
  }
  void click(const QString &name) { QTest::mouseClick(rowOf(name)->mountButton(), Qt::LeftButton); }
  QString title(const QString &name) const { return rowOf(name)->mountButton()->title(); }

  /// Waits for the status line, without its fading.
  bool says(const QString &text) {
    return DiskTest::waitFor([&] {
      const auto fades = interface.statusTextField()->findChildren<QVariantAnimation *>();
      for (QVariantAnimation *fade : fades) fade->setCurrentTime(fade->duration());
      return interface.statusTextField()->stringValue() == text;
    });
  }

 private:
  const CurrentPlatform _current;

 public:
  SimulatedDesktop desktop;
  AppDelegate delegate;
  MainInterface interface;
};
