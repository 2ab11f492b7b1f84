// The saved data on a file system that is full.

#include <QDir>
#include <QFile>

#include "SavedData/ManagedObjectContext.h"
#include "disks/Program.h"
#include "support/Dialogs.h"

namespace {

class SavedDataOnAFullDisk : public DiskTest {
 public:
  void SetUp() override {
    DiskTest::SetUp();
    if (IsSkipped()) return;
    _dataHome = qgetenv("XDG_DATA_HOME");
    folder = DiskLab::makeFolder("small");
    DiskLab::run("mount", {"-t", "tmpfs", "-o", "size=64k", "small", folder});
    qputenv("XDG_DATA_HOME", folder.toLocal8Bit());
  }
  void TearDown() override {
    if (!folder.isEmpty()) {
      DiskLab::run("umount", {folder});
      QDir().rmdir(folder);
      qputenv("XDG_DATA_HOME", _dataHome);
    }
    DiskTest::TearDown();
  }

  QString folder;

 private:
  QByteArray _dataHome;
};

}  // namespace

TEST_F(SavedDataOnAFullDisk, ASaveIsRefusedAndSucceedsOnceThereIsRoom) {
  Program program(*platform);
  AppDelegate &delegate = program.delegate;
  ManagedObjectContext *context = delegate.managedObjectContext();
  ASSERT_NE(context, nullptr);
  const ObjectID id = *context->insertObject("Partition");
  context->setValue(id, "note", "small");
  delegate.saveAction();
  const QDir data(folder + "/com.Brinmoor.Keldra");
  QFile store(data.filePath("OSXCoreDataObjC.storedata"));
  ASSERT_TRUE(store.open(QIODevice::ReadOnly));
  const QByteArray before = store.readAll();
  EXPECT_TRUE(before.contains("small"));

  context->setValue(id, "note", QString(40'000, u'x'));
  context->setValue(*context->insertObject("Partition"), "note", QString(40'000, u'y'));
  Dialogs dialogs({"OK", "OK", "Quit anyway"});
  delegate.saveAction();
  Application application;
  EXPECT_EQ(delegate.applicationShouldTerminate(application), TerminateReply::Cancel);
  EXPECT_EQ(dialogs.texts.value(0).toStdString(),
            "The saved data could not be written: No space left on device");
  EXPECT_EQ(dialogs.texts.value(1), dialogs.texts.value(0));
  EXPECT_EQ(dialogs.texts.size(), 3);
  EXPECT_EQ(data.entryList(QDir::Files).size(), 1) << "nothing half-written is left behind";
  ASSERT_TRUE(store.seek(0));
  EXPECT_EQ(store.readAll(), before);

  DiskLab::run("mount", {"-o", "remount,size=1m", folder});
  EXPECT_EQ(delegate.applicationShouldTerminate(application), TerminateReply::Now);
  EXPECT_FALSE(context->hasChanges());
  store.close();
  EXPECT_GT(store.size(), 80'000);
}
