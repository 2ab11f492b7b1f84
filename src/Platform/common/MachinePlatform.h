#pragma once

// What is the same on every machine that is a real one.

#include <QStandardPaths>

#include "Foundation/NotificationCenter.h"
#include "Platform/Platform.h"
#include "Platform/common/ChildPrograms.h"
#include "Platform/common/FileSystemFiles.h"
#include "Platform/common/SystemClock.h"

class MachinePlatform : public Platform {
 public:
  Clock &clock() override { return _clock; }
  SystemPrograms &systemPrograms() override { return _systemPrograms; }
  std::optional<QImage> imageOnVolume(const QString &path) const override {
    return _volumeFiles.image(path);
  }
  QString applicationSupportFolder() const override {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  }
  NotificationCenter &workspaceNotificationCenter() override { return _workspace; }

 protected:
  NotificationCenter _workspace;

 private:
  SystemClock _clock;
  ChildPrograms _systemPrograms;
  FileSystemFiles _volumeFiles{QString()};
};
