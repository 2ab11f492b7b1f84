#include <gtest/gtest.h>

#include <QAction>
#include <QTranslator>
#include <QUndoStack>
#include <csignal>

#include "Foundation/Error.h"
#include "SavedData/ManagedObjectContext.h"
#include "application.h"
#include "support/AsAnybody.h"
#include "support/Dialogs.h"
#include "support/Files.h"
#include "support/TestMachine.h"

namespace {

const QString kSetUpFailed = "Failed to initialize the application's saved data";
constexpr QFile::Permissions kForAll(QFlag(0x7755));
const QString kNotWritten = "The saved data could not be written: No such file or directory";
const QString kAlert = "Could not save changes while quitting. Quit anyway?";

class SavedDataTest : public testing::Test {
 protected:
  QString support() const { return machine.platform.applicationSupportFolder(); }
  QString folder() const { return support() + "/com.Brinmoor.Keldra"; }
  QString store() const { return folder() + "/OSXCoreDataObjC.storedata"; }

  void change() {
    ManagedObjectContext *context = machine.delegate.managedObjectContext();
    ASSERT_NE(context, nullptr);
    context->setValue(*context->insertObject("Partition"), "note", "mine");
  }
  /// Changes something, and makes it impossible to save it.
  void changeInVain() {
    change();
    EXPECT_TRUE(QDir(folder()).removeRecursively());
  }
  TerminateReply shouldTerminate() { return machine.delegate.applicationShouldTerminate(shared); }

  TestMachine machine{twoEspMachine()};
  Application shared;
};

TEST_F(SavedDataTest, AStoreThatIsNotUsedLeavesNoTrace) {
  QTimer::singleShot(0, qApp, [this] { machine.delegate.closeApp(); });
  Dialogs dialogs({});
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_TRUE(machine.delegate.sessionMayEnd([] { return ADD_FAILURE(), false; }));
  EXPECT_TRUE(dialogs.texts.isEmpty());
  EXPECT_TRUE(QDir(support()).isEmpty());
}

TEST_F(SavedDataTest, IsMadeOnFirstUseAndReadByTheNextProgram) {
  QDir(support()).removeRecursively();
  ManagedObjectContext *context = machine.delegate.managedObjectContext();
  EXPECT_TRUE(QDir(folder()).exists());
  EXPECT_EQ(machine.delegate.managedObjectContext(), context);
  EXPECT_EQ(machine.delegate.windowWillReturnUndoManager(nullptr), &context->undoManager());
  machine.delegate.saveAction();
  EXPECT_FALSE(QFile::exists(store())) << "there was nothing to save";
  change();
  machine.delegate.saveAction();
  AppDelegate next(machine.platform, machine.desktop);
  ASSERT_NE(next.managedObjectContext(), nullptr);
  EXPECT_EQ(next.managedObjectContext()->objects(), context->objects());
  change();
  EXPECT_EQ(shouldTerminate(), TerminateReply::Now) << "it saves";
  EXPECT_FALSE(context->hasChanges());
}

TEST_F(SavedDataTest, WhatCannotBeSetUpIsSaidAndTriedAnew) {
  const QString general = "There was an error creating or loading the application's saved data.";
  QFile::setPermissions(support(), kForAll);
  const auto remove = [this] { QDir(folder()).removeRecursively(), QFile::remove(folder()); };
  const struct {
    std::function<void()> spoil;
    QString informative;
    std::function<void()> mend;
  } kRows[] = {
      {[this] { writeFile(folder(), "a file"); },
       "Expected a folder to store application data, found a file (" + folder() + ").", remove},
      {[this] { QFile::setPermissions(support(), {}); }, general + "\nPermission denied",
       [this] { QFile::setPermissions(support(), kForAll); }},
      {[this] { QDir().mkpath(folder()), writeFile(store(), "<store><rack/>"); },
       general + "\nThe saved data could not be read: This ‹rack› does not belong here (line 1)",
       remove},
  };
  for (const auto &row : kRows) {
    row.spoil();
    const QByteArray before = contentOf(store());
    Dialogs dialogs({"OK", "Escape"});
    testing::internal::CaptureStderr();
    {
      const AsAnybody anybody;
      EXPECT_EQ(machine.delegate.managedObjectContext(), nullptr);
      EXPECT_EQ(machine.delegate.windowWillReturnUndoManager(nullptr), nullptr);
    }
    const QString log = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_TRUE(log.contains("(YOUR_ERROR_DOMAIN 9999): ")) << log.toStdString();
    EXPECT_EQ(dialogs.texts, QStringList({kSetUpFailed, kSetUpFailed}));
    EXPECT_EQ(dialogs.informativeTexts.value(0).toStdString(), row.informative.toStdString());
    EXPECT_EQ(contentOf(store()), before);
    row.mend();
  }
  EXPECT_NE(machine.delegate.managedObjectContext(), nullptr);
}

TEST_F(SavedDataTest, TheAlertKeepsTheProgramByItsFirstButtonOnly) {
  const struct {
    const char *answer;
    TerminateReply reply;
  } kRows[] = {{"Quit anyway", TerminateReply::Cancel},
               {"Cancel", TerminateReply::Now},
               {"Escape", TerminateReply::Now},
               {"close", TerminateReply::Now}};
  changeInVain();
  machine.interface.popover()->close();
  for (const auto &row : kRows) {
    Dialogs dialogs({"OK", row.answer});
    EXPECT_EQ(shouldTerminate(), row.reply) << row.answer;
    EXPECT_EQ(dialogs.texts, QStringList({kNotWritten, kAlert}));
    EXPECT_EQ(dialogs.informativeTexts.value(1),
              "Quitting now will lose any changes you have made since the last successful save");
    EXPECT_EQ(dialogs.titles, QStringList({"OK", "Quit anyway|Cancel"}));
  }
}

TEST_F(SavedDataTest, NothingIsAskedWhereAnEditorRefusesOrTheErrorIsDealtWith) {
  struct Recovering : Application {
    bool presentError(const Error & /*error*/) override { return true; }
  } recovering;
  struct Refusing : Editor {
    bool commitEditing() override { return false; }
  } refusing;
  changeInVain();
  Dialogs dialogs({});
  testing::internal::CaptureStderr();
  EXPECT_EQ(machine.delegate.applicationShouldTerminate(recovering), TerminateReply::Cancel);
  machine.delegate.managedObjectContext()->objectDidBeginEditing(&refusing);
  EXPECT_EQ(shouldTerminate(), TerminateReply::Cancel);
  EXPECT_TRUE(dialogs.texts.isEmpty());
  machine.delegate.saveAction();
  EXPECT_EQ(dialogs.texts.size(), 1) << "it goes on and tries to save";
  const QString log = QString::fromStdString(testing::internal::GetCapturedStderr());
  EXPECT_TRUE(log.contains("applicationShouldTerminate: unable to commit editing to terminate\n"));
  EXPECT_TRUE(log.contains("saveAction: unable to commit editing before saving\n"));
}

TEST_F(SavedDataTest, EveryWayOutGoesThroughTheAlertAndOpensOnlyOne) {
  quitWithTheSystem(machine.delegate);
  const std::function<void()> kWays[] = {
      [this] { QTest::mouseClick(machine.interface.quitButton(), Qt::LeftButton); },
      [this] { machine.interface.quitAction()->trigger(); },
      [] { QCoreApplication::quit(); },
      [] { raise(SIGTERM); },
  };
  changeInVain();
  for (const auto &way : kWays) {
    Dialogs dialogs({"OK", "Quit anyway", "OK", "Cancel"});
    dialogs.meanwhile = [&] {
      raise(SIGTERM);
      machine.delegate.closeApp();
      machine.settle();
      // Having stayed, the program can be asked again.
      if (dialogs.texts.size() == 2) QTimer::singleShot(0, qApp, way);
    };
    QTimer::singleShot(0, qApp, [&] { way(), machine.delegate.closeApp(); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(dialogs.texts.size(), 4);
    EXPECT_EQ(dialogs.texts.value(3), kAlert);
  }
}

TEST_F(SavedDataTest, QuittingDuringARowActionAsksWhenItIsOver) {
  quitWithTheSystem(machine.delegate);
  changeInVain();
  machine.platform.setDelay("disk0s1", std::chrono::milliseconds(20));
  Dialogs dialogs({"OK", "Cancel"});
  QStringList titles;
  dialogs.meanwhile = [&] { titles += machine.mountButton(0)->title(); };
  QTimer::singleShot(0, qApp, [this] {
    QTimer::singleShot(1, qApp, [this] {
      raise(SIGTERM);
      EXPECT_FALSE(machine.delegate.sessionMayEnd([] { return ADD_FAILURE(), true; }));
    });
    machine.click(machine.mountButton(0));
  });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_EQ(titles, QStringList({"umount disk0s1", "umount disk0s1"}));
}

TEST_F(SavedDataTest, ASessionEndsWithWhatIsSavedAndIsKeptByWhatIsNot) {
  const auto yes = [] { return true; };
  const auto no = [] { return false; };
  change();
  Dialogs dialogs({"OK", "Quit anyway", "OK", "Cancel"});
  EXPECT_TRUE(machine.delegate.sessionMayEnd(no));
  EXPECT_TRUE(contentOf(store()).contains("mine"));
  changeInVain();
  EXPECT_FALSE(machine.delegate.sessionMayEnd(no));
  EXPECT_TRUE(dialogs.texts.isEmpty());
  EXPECT_FALSE(machine.delegate.sessionMayEnd(yes));
  dialogs.meanwhile = [&] { EXPECT_FALSE(machine.delegate.sessionMayEnd(yes)); };
  EXPECT_TRUE(machine.delegate.sessionMayEnd(yes));
  EXPECT_EQ(dialogs.texts.size(), 4);
}

TEST_F(SavedDataTest, TheAlertSpeaksThePersonsLanguage) {
  struct Translator : QTranslator {
    QString translate(const char *, const char *text, const char *, int) const override {
      return QStringLiteral("~") + text;
    }
    bool isEmpty() const override { return false; }
  } translator;
  changeInVain();
  QCoreApplication::installTranslator(&translator);
  Dialogs dialogs({});
  shouldTerminate();
  EXPECT_EQ(dialogs.texts.value(1), '~' + kAlert);
  EXPECT_EQ(dialogs.titles.value(1), "~Quit anyway|~Cancel");
}

}  // namespace
