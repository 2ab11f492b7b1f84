#include "DiskArbitrator/DiskArbitrator.h"
#include "Foundation/NotificationCenter.h"

const void *DiskArbitrator::sender() {
  // There are no instances, so a constant of the class stands for it.
  return &kEFISystemPartition;
}

void DiskArbitrator::sendNotificationWithMessage(const QString &message) {
  if (message.isEmpty()) return;
  NotificationCenter::defaultCenter().post(
      {kArbitratorNotification, sender(), {{kNoteKey, message}}});
}
