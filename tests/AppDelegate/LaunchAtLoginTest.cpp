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

TEST_F(LaunchAtLogin, IsNotChangedWhenTheStoredChoiceCannotBeRead) {
  machine.platform.userDefaults().setCanBeRead(false);
  for (const bool isOn : {true, false}) {
    set(isOn ? CheckBox::kOn : CheckBox::kOff);
    machine.platform.userDefaults().set("RunAtload", !isOn);
    machine.delegate.applicationDidFinishLaunching();
    EXPECT_EQ(machine.delegate.isLaunchAtStartup(), isOn);
    EXPECT_EQ(machine.interface.runAtLoadCheck()->state() == CheckBox::kOn, isOn);
  }
}

TEST_F(LaunchAtLogin, IsTurnedOnByTheFirstStartAndLaterByTheCheckBox) {
  EXPECT_EQ(machine.interface.runAtLoadCheck()->state(), CheckBox::kOn);
  EXPECT_TRUE(machine.delegate.isLaunchAtStartup() && stored());
  QTest::mouseClick(machine.interface.runAtLoadCheck(), Qt::LeftButton, {}, {8, 8});
  EXPECT_FALSE(machine.delegate.isLaunchAtStartup() || stored());
  set(CheckBox::kOff);
  EXPECT_EQ(count(), 0) << "off twice changes nothing more";
  set(CheckBox::kOn);
  set(CheckBox::kOn);
  EXPECT_EQ(count(), 1) << "on twice adds one item";
}

TEST_F(LaunchAtLogin, KeepsItemsOfOthersAndRemovesOneDuplicateAtATime) {
  set(CheckBox::kOff);
  SimulatedLoginItems &items = machine.platform.loginItems();
  items.insert(std::nullopt);
  items.insert("/opt/moved/keldra");
  for (int time = 0; time < 2; ++time) items.insert(items.ownLocation());
  set(CheckBox::kOff);
  EXPECT_TRUE(machine.delegate.isLaunchAtStartup()) << "the second own item";
  set(CheckBox::kOff);
  EXPECT_FALSE(machine.delegate.isLaunchAtStartup());
  EXPECT_EQ(count(), 2);
}

TEST_F(LaunchAtLogin, ReadsAStoredTextByItsFirstSignificantCharacter) {
  const std::pair<const char *, bool> kRows[] = {{"no", false}, {"off", false}, {"-0", false},
                                                 {"Yes", true}, {" +07", true}, {"true", true}};
  for (const auto &[text, isOn] : kRows) {
    machine.platform.userDefaults().set("RunAtload", text);
    machine.delegate.applicationDidFinishLaunching();
    EXPECT_EQ(machine.interface.runAtLoadCheck()->state() == CheckBox::kOn, isOn) << text;
    EXPECT_EQ(machine.delegate.isLaunchAtStartup(), isOn);
  }
}
