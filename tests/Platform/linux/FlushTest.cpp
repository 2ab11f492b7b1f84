#include "Platform/linux/Flush.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <cerrno>

TEST(Flush, WritesThatVolumeAndNoOther) {
  const QTemporaryDir folder;
  struct stat status {};
  ASSERT_EQ(stat(QFile::encodeName(folder.path()).constData(), &status), 0);
  EXPECT_EQ(flushVolume(folder.path(), status.st_dev).result(), 0);
  EXPECT_EQ(flushVolume("/proc", status.st_dev).result(), ENODEV) << "another volume is there";
  EXPECT_EQ(flushVolume(folder.filePath("missing"), status.st_dev).result(), ENOENT);
}
