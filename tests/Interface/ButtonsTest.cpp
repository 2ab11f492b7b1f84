// Buttons, check boxes and the gate that discards user input.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "Interface/CheckBox.h"
#include "Interface/InputGate.h"
#include "Interface/Popover.h"
#include "Interface/RowButton.h"

namespace {

class ButtonsTest : public testing::Test {
 protected:
  void SetUp() override {
    auto *layout = new QVBoxLayout(&window);
    for (QWidget *widget : QWidgetList{button, box, plain}) layout->addWidget(widget);
    button->setTitle("mount disk0s1");
    button->setAction([this](RowButton *) { ++clicks; });
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  static void doAction(QWidget *widget, const QString &name) {
    QAccessible::queryAccessibleInterface(widget)->actionInterface()->doAction(name);
  }

  Popover window;
  RowButton *button = new RowButton;
  CheckBox *box = new CheckBox("Show all");
  QPushButton *plain = new QPushButton("Quit");
  int clicks = 0;
};

TEST_F(ButtonsTest, EachClickOrKeyActsOnce) {
  QTest::mouseClick(button, Qt::LeftButton);
  QTest::mouseDClick(button, Qt::LeftButton);
  QTest::mouseRelease(button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1) << "the second press of a double click is not a click";
  QTest::mouseClick(button, Qt::LeftButton);
  button->setFocus();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    QTest::keyClick(button, key);
    QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(button, &repeated);
  }
  EXPECT_EQ(clicks, 5);
}

TEST_F(ButtonsTest, AScreenReadersPressIsCancelledWhenTheTitleChanges) {
  doAction(button, QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([this] { return clicks == 1; }));

  doAction(button, QAccessibleActionInterface::pressAction());
  button->setTitle("mount disk1s1");
  doAction(plain, QAccessibleActionInterface::pressAction());
  QSignalSpy later(plain, &QPushButton::clicked);
  EXPECT_TRUE(later.wait());
  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonsTest, CheckBoxEmitsActedOnlyForTheUser) {
  QSignalSpy acted(box, &CheckBox::acted);
  for (const int state : {1, 0, -1}) box->setState(state);
  EXPECT_EQ(box->state(), -1);
  EXPECT_EQ(acted.size(), 0);
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_EQ(box->state(), 1) << "a click changes mixed to on";
  QTest::keyClick(box, Qt::Key_Space);
  EXPECT_EQ(box->state(), 0);
  doAction(box, QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(box->state(), 1);
  EXPECT_EQ(acted.size(), 3);
}

TEST_F(ButtonsTest, GateDiscardsInputAndReleasesPressedButtons) {
  QAction shortcut;
  shortcut.setShortcut(QKeySequence("Ctrl+K"));
  window.addAction(&shortcut);
  QSignalSpy triggered(&shortcut, &QAction::triggered);
  const auto actEverywhere = [&] {
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
  };
  QSignalSpy quit(plain, &QPushButton::clicked);
  QTest::mousePress(plain, Qt::LeftButton);
  QTest::keyPress(button, Qt::Key_Space);
  {
    const InputGate outer(&window);
    { const InputGate inner(&window); }
    QTest::keyRelease(button, Qt::Key_Space);
    actEverywhere();
    QTest::mousePress(button, Qt::LeftButton);
  }
  EXPECT_FALSE(button->isDown());
  QTest::mouseRelease(button, Qt::LeftButton);
  QTest::mouseMove(plain, {6, 6});
  QTest::mouseRelease(plain, Qt::LeftButton);
  EXPECT_EQ(clicks + triggered.size() + quit.size(), 0);
  actEverywhere();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(triggered.size(), 1);
}

TEST_F(ButtonsTest, GateKeepsTheQuitButtonUsableByPointerAndKeyboard) {
  InputGate::setWayOut(plain);
  QSignalSpy quit(plain, &QPushButton::clicked);
  QPushButton ofMenu;
  QSignalSpy quitFromMenu(&ofMenu, &QPushButton::clicked);
  const InputGate gate(&window);
  QTest::mouseClick(&ofMenu, Qt::LeftButton);
  EXPECT_EQ(quitFromMenu.size(), 1);
  QTest::mouseClick(plain, Qt::LeftButton);
  button->setFocus();
  for (int presses = 0; presses < 3 && !plain->hasFocus(); ++presses)
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  QTest::keyClick(plain, Qt::Key_Space);
  EXPECT_EQ(quit.size(), 2);
  EXPECT_TRUE(plain->hasFocus());
}

}  // namespace
