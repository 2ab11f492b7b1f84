#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "SavedData/ManagedObjectContext.h"
#include "SavedData/ManagedObjectModel.h"
#include "SavedData/PersistentStoreCoordinator.h"
#include "support/Files.h"

namespace {

class StoreTest : public testing::Test {
 protected:
  ManagedObjects stored() const {
    PersistentStoreCoordinator other(model);
    EXPECT_FALSE(other.addXMLStore(path).has_value());
    return other.objects();
  }

  QTemporaryDir folder;
  const QString path = folder.filePath("store");
  const ManagedObjectModel model{writeFile(folder.filePath("model"), R"({ "Volume": ["note"] })")};
  PersistentStoreCoordinator coordinator{model};
  const std::optional<Error> problem = coordinator.addXMLStore(path);
  ManagedObjectContext context{coordinator};
};

TEST_F(StoreTest, ChangesAreUndoneRedoneAndSaved) {
  const auto id = context.insertObject("Volume");
  EXPECT_FALSE(context.setValue(*id, "size", "1"));
  const QString text = "\t <a href=\"x\">&amp;\r\n\"']]>\u00e4\U0001F4BE ";
  EXPECT_TRUE(context.setValue(*id, "note", text));
  EXPECT_FALSE(context.save().has_value());
  EXPECT_EQ(stored().value(*id).values.value("note"), text);
  context.setValue(*id, "note", "\x1b[2J");
  EXPECT_TRUE(context.save().has_value()) << "the text could not be read back";
  context.undoManager().undo();
  EXPECT_TRUE(context.deleteObject(*id));
  context.undoManager().undo();
  EXPECT_FALSE(context.hasChanges()) << "undone to the saved state";
  context.undoManager().redo();
  EXPECT_FALSE(context.save().has_value());
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(StoreTest, CorruptFilesAreRefusedAndNotChanged) {
  const QByteArray object =
      R"(<object entity="Volume" id="{0e2f0b4c-1111-4c4c-8d8d-121212121212}">
         <attribute name="note" value="a&#13;&lt;b"/></object>)";
  const QByteArray good = "<store>" + object + "</store>";
  writeFile(path, good);
  EXPECT_EQ(stored().first().values.value("note"), "a\r<b");
  for (const QByteArray &content :
       {QByteArray(), good.chopped(1), good + "<more/>", "<store>" + object + object + "</store>",
        QByteArray(good).replace("note", "size")}) {
    writeFile(path, content);
    const auto error = PersistentStoreCoordinator(model).addXMLStore(path);
    EXPECT_EQ(error ? error->code : 0, kFileReadCorruptFile) << content.toStdString();
    EXPECT_EQ(contentOf(path), content);
  }
}

}  // namespace
