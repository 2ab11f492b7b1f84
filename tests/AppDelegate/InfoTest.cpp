#include <gtest/gtest.h>

#include <QClipboard>
#include <QFormLayout>
#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>

#include "Interface/InfoWindow.h"
#include "support/OpenedFolders.h"
#include "support/TestMachine.h"

namespace {

// As Plasma 6 does.
struct NarrowFields : QProxyStyle {
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *data) const override {
    return hint == SH_FormLayoutFieldGrowthPolicy
               ? QFormLayout::FieldsStayAtSizeHint
               : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

TEST(Info, ShowsAndCopiesTheFactsForABugReport) {
  NarrowFields style;
  TestMachine machine(twoEspMachine());
  InfoWindow *window = machine.interface.infoWindow();
  window->setStyle(&style);
  QTest::mouseClick(machine.interface.infoButton(), Qt::LeftButton);
  EXPECT_TRUE(window->isVisible());
  for (const auto *label : window->findChildren<QLabel *>()) {
    EXPECT_GE(label->height(), label->heightForWidth(label->width()))
        << label->text().toStdString();
  }
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
