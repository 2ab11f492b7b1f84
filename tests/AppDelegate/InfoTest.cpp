#include <gtest/gtest.h>

#include <QClipboard>
#include <QLabel>
#include <QPushButton>

#include "Interface/InfoWindow.h"
#include "support/OpenedFolders.h"
#include "support/TestMachine.h"

TEST(Info, ShowsAndCopiesTheFactsForABugReport) {
  TestMachine machine(twoEspMachine());
  QTest::mouseClick(machine.interface.infoButton(), Qt::LeftButton);
  InfoWindow *window = machine.interface.infoWindow();
  EXPECT_TRUE(window->isVisible());
  const QRect screen = window->screen()->availableGeometry();
  EXPECT_LE((window->frameGeometry().center() - screen.center()).manhattanLength(), 2);
  for (auto *button : window->findChildren<QPushButton *>()) {
    if (button->text() == "&Copy") button->click();
  }
  const QString copied = QGuiApplication::clipboard()->text();
  for (const char *fact : {"Version: Keldra v1.6", "Licence: MIT", "Stands on: Qt 6",
                           "Tray: simulated", "Disk service: a simulated machine, answers"}) {
    EXPECT_TRUE(copied.contains(fact)) << fact << "\nin\n" << copied.toStdString();
  }
  machine.platform.setPresence(DiskService::Presence::Absent);
  machine.delegate.showInfo();
  EXPECT_TRUE(window->text().contains("a simulated machine, not there")) << "outdated facts";

  machine.settle();
  const QSize size = window->size();
  window->showMinimized();
  machine.delegate.showInfo();
  machine.settle();
  EXPECT_EQ(window->size(), size);
  EXPECT_FALSE(window->isMinimized());
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  const auto *value = qobject_cast<QLabel *>(window->focusWidget());
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->selectedText(), "Keldra v1.6") << "selected by the keyboard focus";
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}
