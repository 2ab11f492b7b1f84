#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <ctime>

#include "SavedData/ManagedObjectContext.h"
#include "SavedData/ManagedObjectModel.h"
#include "SavedData/PersistentStoreCoordinator.h"

namespace {

const char kSmallStore[] =
    R"(<store><object entity="Volume" id="{0e2f0b4c-1111-4c4c-8d8d-121212121212}">
         <attribute name="note" value="a&#13;&lt;b"/></object></store>)";

class StoreTest : public testing::Test {
 protected:
  StoreTest() {
    put(folder.filePath("model"), R"({ "Volume": ["note", "label"] })");
    model = std::make_unique<ManagedObjectModel>(folder.filePath("model"));
  }

  static void put(const QString &path, const QByteArray &content) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
  }

  static QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
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
    bool commitEditing() override { return ++asked, action(); }
    std::function<bool()> action = [] { return true; };
    int asked = 0;
  } first, second, third;
  for (TestEditor *editor : {&first, &second, &third}) context.objectDidBeginEditing(editor);
  first.action = [&] {
    context.objectDidEndEditing(&first);
    context.objectDidEndEditing(&second);
    return true;
  };
  third.action = [] { return false; };
  EXPECT_FALSE(context.commitEditing());
  EXPECT_FALSE(context.commitEditing());
  EXPECT_EQ(first.asked, 1);
  EXPECT_EQ(second.asked, 0) << "it had left";
  EXPECT_EQ(third.asked, 2);
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
      "no XML",
      good.chopped(1),
      good + "<more/>",
      "\xFF\xFE" + good,
      QByteArray(good).replace("store>", "shop>"),
      QByteArray(good).replace("Volume", "Disk"),
      QByteArray(good).replace("note", "size"),
      QByteArray(good).replace("{0e2f", "{"),
      QByteArray(good).replace("id=", "key="),
      QByteArray(good).replace("value=", "valve="),
      QByteArray(good).replace("<store>", "<store version=\"2\">"),
      QByteArray(good).replace("</object>", "text</object>"),
      QByteArray(good).replace("</object>", value + "</object>"),
      QByteArray(good).replace("</store>", object + "</store>"),
      QByteArray(good).replace("/></object>", "><b/></attribute></object>"),
      // What is made to take all memory or time.
      "<!DOCTYPE store [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;&a;\">]>" + good,
      QByteArray("<store>").repeated(1'000'000),
      manyAttributes + "/></store>",
      QByteArray(good).replace("a&#13;", QByteArray(10'000'000, 'a')),
      good + QByteArray(20'000'000, ' '),
  };
  put(path, good);
  EXPECT_EQ(stored().first().values.value("note"), "a\r<b");
  for (const QByteArray &content : contents) {
    put(path, content);
    PersistentStoreCoordinator coordinator(*model);
    const auto error = coordinator.addXMLStore(path);
    EXPECT_EQ(error ? error->code : 0, kFileReadCorruptFile) << content.left(300).toStdString();
    EXPECT_TRUE(coordinator.objects().isEmpty());
    EXPECT_EQ(contentOf(path).size(), content.size());
    EXPECT_TRUE(contentOf(path) == content);
  }
  for (const auto &make : {mkfifo, mkdir}) {
    const QString special = folder.filePath("special");
    ASSERT_EQ(make(special.toLocal8Bit().constData(), 0700), 0);
    EXPECT_TRUE(PersistentStoreCoordinator(*model).addXMLStore(special).has_value());
    std::remove(special.toLocal8Bit().constData());
  }
}

/// Two objects that always say the same, and enough beside them for a save to take its time.
class Generations {
 public:
  explicit Generations(PersistentStoreCoordinator &coordinator) : context(coordinator) {
    for (int number = 0; number < 100; ++number) ids += *context.insertObject("Volume");
  }

  std::optional<Error> save(int generation) {
    const QString padding(10'000, u'p');
    for (const ObjectID &id : ids)
      context.setValue(id, "note", QString::number(generation) + padding);
    return context.save();
  }

  ManagedObjectContext context;
  QList<ObjectID> ids;
};

/// Kills this process after so many nanoseconds, wherever it is then.
void killAfter(qint64 nanoseconds) {
  sigevent event{};
  event.sigev_notify = SIGEV_SIGNAL;
  event.sigev_signo = SIGKILL;
  timer_t timer{};
  timer_create(CLOCK_MONOTONIC, &event, &timer);
  constexpr qint64 kSecond = 1'000'000'000;
  const itimerspec time{{}, {nanoseconds / kSecond, nanoseconds % kSecond}};
  timer_settime(timer, 0, &time, nullptr);
}

TEST_F(StoreTest, AKillAtAnyPointOfASaveLeavesTheOldObjectsOrTheNew) {
  PersistentStoreCoordinator coordinator(*model);
  ASSERT_FALSE(coordinator.addXMLStore(path).has_value());
  Generations generations(coordinator);
  ASSERT_FALSE(generations.save(0).has_value());
  QElapsedTimer timer;
  timer.start();
  ASSERT_FALSE(generations.save(1).has_value());
  const qint64 duration = timer.nsecsElapsed();

  int before = 0;
  constexpr int kPoints = 24;
  for (int point = 0; point < kPoints; ++point) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      // Some fall behind the end: a save's time is not always the same.
      killAfter(duration * (point + 1) / (kPoints - 4));
      _exit(generations.save(2).has_value() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    const ManagedObjects objects = stored();
    ASSERT_EQ(objects.size(), generations.ids.size());
    const QString first = objects.first().values.value("note");
    for (const ManagedObject &object : objects) ASSERT_EQ(object.values.value("note"), first);
    ASSERT_TRUE(first.startsWith("1p") || first.startsWith("2p"));
    if (WIFSIGNALED(status)) before += first.startsWith("1p") ? 1 : 0;
    ASSERT_FALSE(coordinator.save(generations.context.objects()).has_value());
  }
  EXPECT_GT(before, 0) << "no kill came before the end of a save";
}

}  // namespace
