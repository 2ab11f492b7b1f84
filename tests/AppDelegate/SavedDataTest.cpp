#include <gtest/gtest.h>

#include <QAction>
#include <QUndoStack>
#include <csignal>

#include "Application/End.h"
#include "Foundation/Error.h"
#include "SavedData/ManagedObjectContext.h"
#include "support/Dialogs.h"
#include "support/Files.h"
#include "support/TestMachine.h"

namespace {

class SavedDataTest : public testing::Test {
 protected:
  ManagedObjectContext *context() { return machine.delegate.managedObjectContext(); }

  void change() { context()->setValue(*context()->insertObject("Partition"), "note", "mine"); }
  /// Makes a change and then makes it impossible to save.
  void changeInVain() {
    change();
    EXPECT_TRUE(QDir(folder).removeRecursively());
    writeFile(folder, "a file");
  }
  TerminateReply shouldTerminate() { return machine.delegate.applicationShouldTerminate(shared); }

  TestMachine machine{twoEspMachine()};
  Application shared;
  const QString folder = machine.platform.folders().support + "/com.Brinmoor.Keldra";
  const QString store = folder + "/OSXCoreDataObjC.storedata";
};

TEST_F(SavedDataTest, IsCreatedOnFirstUseAndReadAfterARestart) {
  EXPECT_EQ(shouldTerminate(), TerminateReply::Now);
  EXPECT_FALSE(QFile::exists(folder)) << "a store that is not used leaves no trace";
  EXPECT_EQ(machine.delegate.windowWillReturnUndoManager(nullptr), &context()->undoManager());
  change();
  machine.delegate.saveAction();
  AppDelegate next(machine.platform, machine.desktop);
  EXPECT_EQ(next.managedObjectContext()->objects(), context()->objects());
  change();
  EXPECT_EQ(shouldTerminate(), TerminateReply::Now);
  EXPECT_FALSE(context()->hasChanges()) << "the changes should be saved";
}

TEST_F(SavedDataTest, AFailedSetUpIsReportedAndTriedAgain) {
  const std::pair<QString, QString> kRows[] = {
      {folder, "Expected a folder to store application data, found a file (" + folder + ")."},
      {store,
       "There was an error creating or loading the application's saved data.\n"
       "The saved data could not be read: This ‹rack› does not belong here (line 1)"}};
  for (const auto &[spoilt, informative] : kRows) {
    writeFile(spoilt, "<rack/>");
    Dialogs dialogs({"OK"});
    testing::internal::CaptureStderr();
    EXPECT_EQ(context(), nullptr);
    EXPECT_TRUE(testing::internal::GetCapturedStderr().find("(YOUR_ERROR_DOMAIN 9999): ") + 1);
    EXPECT_EQ(dialogs.texts, QStringList{"Failed to initialize the application's saved data"});
    EXPECT_EQ(dialogs.informativeTexts.value(0).toStdString(), informative.toStdString());
    QFile::remove(spoilt);
  }
  EXPECT_NE(context(), nullptr);
}

TEST_F(SavedDataTest, OnlyTheFirstButtonOfTheAlertKeepsTheProgramRunning) {
  changeInVain();
  for (const QString answer : {"Quit anyway", "Cancel", "Escape"}) {
    Dialogs dialogs({"OK", answer});
    EXPECT_EQ(shouldTerminate() == TerminateReply::Cancel, answer == "Quit anyway");
    EXPECT_EQ(dialogs.texts.value(1), "Could not save changes while quitting. Quit anyway?");
    EXPECT_EQ(dialogs.informativeTexts.value(1),
              "Quitting now will lose any changes you have made since the last successful save");
    EXPECT_EQ(dialogs.titles, QStringList({"OK", "Quit anyway|Cancel"}));
  }
}

TEST_F(SavedDataTest, AnEditorThatRefusesPreventsQuitting) {
  struct Refusing : Editor {
    bool commitEditing() override { return false; }
  } refusing;
  change();
  context()->objectDidBeginEditing(&refusing);
  testing::internal::CaptureStderr();
  EXPECT_EQ(shouldTerminate(), TerminateReply::Cancel);
  machine.delegate.saveAction();
  EXPECT_TRUE(QFile::exists(store)) << "saveAction saves all the same";
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "AppDelegate:applicationShouldTerminate: unable to commit editing to terminate\n"
            "AppDelegate:saveAction: unable to commit editing before saving\n");
}

TEST_F(SavedDataTest, EveryWayToQuitShowsTheAlertExactlyOnce) {
  quitWithTheSystem(machine.delegate);
  changeInVain();
  const std::function<void()> kWays[] = {
      [this] { QTest::mouseClick(machine.interface.quitButton(), Qt::LeftButton); },
      [this] { machine.interface.quitAction()->trigger(); }, [] { raise(SIGTERM); }};
  for (const auto &way : kWays) {
    Dialogs dialogs({"OK", "Cancel"});
    dialogs.meanwhile = [&] { raise(SIGTERM), machine.delegate.closeApp(), machine.settle(); };
    QTimer::singleShot(0, qApp, way);
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(dialogs.texts.size(), 2);
  }
}

TEST_F(SavedDataTest, QuittingDuringALongRowActionAsksAboutUnsavedData) {
  machine.platform.setDelay("disk0s1", std::chrono::milliseconds(5500));
  changeInVain();
  Dialogs dialogs({"OK", "Escape"});
  QList<qsizetype> ends;
  QObject::connect(&machine.delegate, &AppDelegate::endsInRowAction,
                   [&] { ends += dialogs.texts.size(); });
  QTimer::singleShot(0, qApp,
                     [&] { QTest::mouseClick(machine.interface.quitButton(), Qt::LeftButton); });
  machine.click(machine.mountButton(0));
  machine.settle();
  EXPECT_EQ(dialogs.texts.size(), 2) << "one error dialog and one alert";
  EXPECT_EQ(ends, QList<qsizetype>{2}) << "exits after the alert";
}

TEST_F(SavedDataTest, TheSessionEndsOnlyAfterASuccessfulSaveOrAnswer) {
  const auto mayEnd = [this](bool mayAsk) {
    return machine.delegate.sessionMayEnd([mayAsk] { return mayAsk; });
  };
  change();
  Dialogs dialogs({"OK", "Cancel"});
  EXPECT_TRUE(mayEnd(false));
  EXPECT_TRUE(contentOf(store).contains("mine"));
  changeInVain();
  EXPECT_FALSE(mayEnd(false));
  dialogs.meanwhile = [&] { EXPECT_FALSE(mayEnd(true)) << "one alert is enough"; };
  EXPECT_TRUE(mayEnd(true));
}

}  // namespace
