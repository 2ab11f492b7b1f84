#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <csignal>
#include <cstring>

#include "SavedData/ManagedObjectContext.h"
#include "SavedData/ManagedObjectModel.h"
#include "SavedData/PersistentStoreCoordinator.h"
#include "support/Files.h"

namespace {

const char kSmallStore[] =
    R"(<store><object entity="Volume" id="{0e2f0b4c-1111-4c4c-8d8d-121212121212}">
         <attribute name="note" value="a&#13;&lt;b"/></object></store>)";

class StoreTest : public testing::Test {
 protected:
  StoreTest() {
    writeFile(folder.filePath("model"), R"({ "Volume": ["note", "label"] })");
    model = std::make_unique<ManagedObjectModel>(folder.filePath("model"));
  }

  ManagedObjects stored() const {
    PersistentStoreCoordinator coordinator(*model);
    EXPECT_FALSE(coordinator.addXMLStore(path).has_value());
    return coordinator.objects();
  }

  QTemporaryDir folder;
  const QString path = folder.filePath("store");
  std::unique_ptr<ManagedObjectModel> model;
};

class ContextTest : public StoreTest {
 protected:
  PersistentStoreCoordinator &open() {
    EXPECT_FALSE(coordinator.addXMLStore(path).has_value());
    return coordinator;
  }

  PersistentStoreCoordinator coordinator{*model};
  ManagedObjectContext context{open()};
};

TEST_F(ContextTest, ChangesAreUndoneRepeatedAndSaved) {
  const auto id = context.insertObject("Volume");
  ASSERT_TRUE(id.has_value());
  const QString text = "\t <a href=\"x\">&amp;\r\n\"']]>\u00e4\U0001F4BE ";
  EXPECT_TRUE(context.setValue(*id, "note", text));
  EXPECT_TRUE(context.setValue(*id, "label", ""));
  const ManagedObjects full = context.objects();
  EXPECT_EQ(full[*id].values.value("note"), text);
  EXPECT_TRUE(context.setValue(*id, "label", std::nullopt));
  EXPECT_FALSE(context.objects()[*id].values.contains("label"));
  context.undoManager().undo();
  EXPECT_EQ(context.objects(), full);

  EXPECT_TRUE(context.hasChanges());
  EXPECT_FALSE(context.save().has_value());
  EXPECT_FALSE(context.hasChanges());
  EXPECT_EQ(stored(), full) << "an empty text is not an absent one";

  EXPECT_TRUE(context.deleteObject(*id));
  EXPECT_TRUE(context.hasChanges());
  context.undoManager().undo();
  EXPECT_FALSE(context.hasChanges()) << "it is as it was saved";
  context.undoManager().redo();
  EXPECT_FALSE(context.save().has_value());
  EXPECT_TRUE(stored().isEmpty());
  while (context.undoManager().canUndo()) context.undoManager().undo();
  EXPECT_TRUE(context.objects().isEmpty());
}

TEST_F(ContextTest, WhatIsNotInTheModelIsRefused) {
  EXPECT_EQ(context.insertObject("Disk"), std::nullopt);
  const auto id = context.insertObject("Volume");
  EXPECT_FALSE(context.setValue(*id, "size", "1"));
  EXPECT_FALSE(context.setValue(ObjectID::createUuid(), "note", "1"));
  EXPECT_FALSE(context.deleteObject(ObjectID::createUuid()));
  EXPECT_EQ(context.undoManager().count(), 1);
}

TEST_F(ContextTest, WhatCouldNotBeReadBackIsNotWritten) {
  const auto id = context.insertObject("Volume");
  ASSERT_FALSE(context.save().has_value());
  const QByteArray before = contentOf(path);
  const QString texts[] = {QString(QChar(0)), "\x1b[2J", QString(QChar(0xD800)),
                           QString(QChar(0xFFFE)), QString(100'000, u'x')};
  for (const QString &text : texts) {
    context.setValue(*id, "note", text);
    EXPECT_TRUE(context.save().has_value()) << text.left(9).toStdString();
    EXPECT_TRUE(context.hasChanges());
  }
  EXPECT_EQ(contentOf(path), before);
  context.setValue(*id, "note", "well");
  EXPECT_FALSE(context.save().has_value());
}

TEST_F(ContextTest, AnEditorMayRefuseAndMayLeave) {
  struct TestEditor : Editor {
    bool commitEditing() override { return action(); }
    std::function<bool()> action = [] { return ADD_FAILURE() << "it had left", true; };
  } first, second, third;
  for (TestEditor *editor : {&first, &second, &third}) context.objectDidBeginEditing(editor);
  first.action = [&] {
    context.objectDidEndEditing(&first);
    context.objectDidEndEditing(&second);
    return true;
  };
  third.action = [] { return false; };
  EXPECT_FALSE(context.commitEditing());
  context.objectDidEndEditing(&third);
  EXPECT_TRUE(context.commitEditing());
}

TEST_F(StoreTest, WhatIsNotAStoreIsRefusedAndLeftAlone) {
  const QByteArray good(kSmallStore);
  QByteArray manyAttributes = "<store><object";
  for (int number = 0; number < 1'000'000; ++number)
    manyAttributes += " a" + QByteArray::number(number) + "=''";
  const QByteArray value = "<attribute name=\"note\" value=\"x\"/>";
  const QByteArray object = good.mid(7, good.size() - 15);
  const QByteArray contents[] = {
      "",
      good.chopped(1),
      good + "<more/>",
      "\xFF\xFE" + good,
      QByteArray(good).replace("store>", "shop>"),
      QByteArray(good).replace("Volume", "Disk"),
      QByteArray(good).replace("note", "size"),
      QByteArray(good).replace("id=", "key="),
      QByteArray(good).replace("value=", "valve="),
      QByteArray(good).replace("</object>", "text</object>"),
      QByteArray(good).replace("</object>", value + "</object>"),
      QByteArray(good).replace("</store>", object + "</store>"),
      // What is made to take all memory or time.
      "<!DOCTYPE store [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;&a;\">]>" + good,
      QByteArray("<store>").repeated(1'000'000),
      manyAttributes + "/></store>",
      QByteArray(good).replace("a&#13;", QByteArray(10'000'000, 'a')),
      good + QByteArray(20'000'000, ' '),
  };
  writeFile(path, good);
  EXPECT_EQ(stored().first().values.value("note"), "a\r<b");
  for (const QByteArray &content : contents) {
    writeFile(path, content);
    PersistentStoreCoordinator coordinator(*model);
    const auto error = coordinator.addXMLStore(path);
    EXPECT_EQ(error ? error->code : 0, kFileReadCorruptFile) << content.left(300).toStdString();
    EXPECT_TRUE(coordinator.objects().isEmpty());
    EXPECT_TRUE(contentOf(path) == content);
  }
  const QString pipe = folder.filePath("pipe");
  ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0700), 0);
  EXPECT_TRUE(PersistentStoreCoordinator(*model).addXMLStore(pipe).has_value());
}

/// While it lives, every file of this process is refused what is beyond this size, as on a disk that
/// has filled up.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) : _signal(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &_before), 0);
    const rlimit limit{size, _before.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &_before);
    std::signal(SIGXFSZ, _signal);
  }
  FullDisk(const FullDisk &) = delete;
  FullDisk &operator=(const FullDisk &) = delete;

 private:
  sighandler_t _signal;
  rlimit _before{};
};

TEST_F(ContextTest, ASaveOnADiskThatFillsUpLeavesTheOldObjects) {
  const auto id = context.insertObject("Volume");
  ASSERT_FALSE(context.save().has_value());
  const ManagedObjects before = stored();
  context.setValue(*id, "note", QString(40'000, u'x'));
  std::optional<Error> error;
  {
    const FullDisk full(10'000);
    error = context.save();
  }
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(error->localizedDescription.toStdString(),
            "The saved data could not be written: " + std::string(std::strerror(EFBIG)));
  EXPECT_TRUE(context.hasChanges());
  EXPECT_EQ(stored(), before);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2) << "beside the model";
  EXPECT_FALSE(context.save().has_value());
  EXPECT_EQ(stored(), context.objects());
}

}  // namespace
