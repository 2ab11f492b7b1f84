#include <gtest/gtest.h>

#include "support/TestMachine.h"

namespace {

class LaunchAtLogin : public testing::Test {
 protected:
  bool stored() { return machine.platform.userDefaults().object("RunAtload").toBool(); }
  qsizetype count() { return machine.platform.loginItems().snapshot()->size(); }
  void set(int state) {
    machine.interface.runAtLoadCheck()->setState(state);
    machine.delegate.runAtLoad(machine.interface.runAtLoadCheck());
  }

  TestMachine machine{"{}"};
};

}  // namespace

TEST_F(LaunchAtLogin, IsTurnedOnByTheFirstStart) {
  EXPECT_EQ(machine.interface.runAtLoadCheck()->state(), CheckBox::kOn);
  EXPECT_TRUE(machine.delegate.isLaunchAtStartup());
  EXPECT_TRUE(stored());
}

TEST_F(LaunchAtLogin, StaysAsItIsWhereTheChoiceCannotBeRead) {
  machine.platform.userDefaults().setCanBeRead(false);
  for (const bool isOn : {true, false}) {
    set(isOn ? CheckBox::kOn : CheckBox::kOff);
    machine.platform.userDefaults().set("RunAtload", !isOn);
    machine.delegate.applicationDidFinishLaunching();
    EXPECT_EQ(machine.delegate.isLaunchAtStartup(), isOn);
    EXPECT_EQ(machine.interface.runAtLoadCheck()->state() == CheckBox::kOn, isOn);
  }
}

TEST_F(LaunchAtLogin, ABoxThatIsClickedAddsAndRemovesTheItem) {
  QTest::mouseClick(machine.interface.runAtLoadCheck(), Qt::LeftButton, {}, {8, 8});
  EXPECT_FALSE(machine.delegate.isLaunchAtStartup());
  EXPECT_FALSE(stored());
  set(CheckBox::kOff);
  EXPECT_EQ(count(), 0) << "off twice changes nothing more";
  set(CheckBox::kOn);
  set(CheckBox::kOn);
  EXPECT_EQ(count(), 1) << "on twice adds one item";
}

TEST_F(LaunchAtLogin, LeavesItemsOfOthersAndTakesOneDuplicateAtATime) {
  SimulatedLoginItems &items = machine.platform.loginItems();
  items.insert(std::nullopt);
  items.insert("/opt/moved/keldra");
  items.insert(items.ownLocation());
  set(CheckBox::kOff);
  EXPECT_EQ(count(), 3);
  EXPECT_TRUE(machine.delegate.isLaunchAtStartup()) << "the second one of ours";
  EXPECT_FALSE(stored());
}

TEST_F(LaunchAtLogin, ATextCountsByItsFirstCharacterBehindBlanksSignAndZeros) {
  const std::pair<const char *, bool> kRows[] = {{"no", false}, {"off", false}, {"-0", false},
                                                 {"Yes", true}, {" +07", true}, {"true", true}};
  for (const auto &[text, isOn] : kRows) {
    machine.platform.userDefaults().set("RunAtload", text);
    machine.delegate.applicationDidFinishLaunching();
    EXPECT_EQ(machine.interface.runAtLoadCheck()->state() == CheckBox::kOn, isOn) << text;
    EXPECT_EQ(machine.delegate.isLaunchAtStartup(), isOn);
  }
}
