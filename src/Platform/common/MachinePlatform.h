#pragma once

// What all real machines share.

#include <QStandardPaths>

#include "Foundation/NotificationCenter.h"
#include "Platform/Platform.h"
#include "Platform/common/ChildPrograms.h"
#include "Platform/common/SystemClock.h"

class MachinePlatform : public Platform {
 public:
  Clock &clock() override { return _clock; }
  SystemPrograms &systemPrograms() override { return _systemPrograms; }
  Folders folders() const override {
    return {volumesFolder(), QStringLiteral("/Volumes"),
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)};
  }
  NotificationCenter &workspaceNotificationCenter() override { return _workspace; }

 protected:
  virtual QString volumesFolder() const { return QStringLiteral("/Volumes"); }

  NotificationCenter _workspace;

 private:
  SystemClock _clock;
  ChildPrograms _systemPrograms;
};
