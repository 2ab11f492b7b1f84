#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QTranslator>

#include "Application/Languages.h"
#include "Interface/InfoWindow.h"
#include "support/TestMachine.h"

namespace {

void expectRoomForWords(const QWidget &window) {
  for (const auto *button : window.findChildren<QAbstractButton *>()) {
    EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
  }
  for (const auto *label : window.findChildren<QLabel *>()) {
    const int needed =
        label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    EXPECT_TRUE(!label->isVisible() || label->height() >= needed) << label->text().toStdString();
  }
}

}  // namespace

TEST(Languages, FitIntoTheWindowsInTheirDirection) {
  const int usualWidth = TestMachine(twoEspMachine()).interface.popover()->width();
  for (const QString &file : QDir(":/translations").entryList()) {
    const QLocale locale(file.chopped(3).section('_', 1));
    QLocale::setDefault(locale);
    loadTranslations();
    const auto undo = qScopeGuard([] { qDeleteAll(qApp->findChildren<QTranslator *>()); });
    SCOPED_TRACE(file.toStdString());
    TestMachine machine(twoEspMachine());
    const MainInterface &interface = machine.interface;
    EXPECT_NE(interface.quitButton()->text(), "Quit");
    EXPECT_EQ(interface.popover()->width(), usualWidth);
    EXPECT_EQ(interface.quitButton()->x() < interface.infoButton()->x(),
              locale.textDirection() == Qt::RightToLeft);
    expectRoomForWords(*interface.popover());
    interface.infoButton()->click();
    machine.settle();
    expectRoomForWords(*interface.infoWindow());
  }
  QLocale::setDefault(QLocale(QLocale::English));
  QApplication::setLayoutDirection(Qt::LeftToRight);
}
