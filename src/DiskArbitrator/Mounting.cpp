#include "DiskArbitrator/DiskArbitrator.h"
#include "DiskArbitrator/daStatus.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Text.h"

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr auto kConfirmationTime = 5s;

using Callback = std::function<void(const std::optional<Dissenter> &)>;

/// Makes a request of the disk service and serves the run loop until the callback has been called.
void await(const std::function<void(DiskService &, DiskService::Completion)> &request,
           const Callback &callback) {
  Platform &platform = Platform::current();
  bool finished = false;
  request(platform.diskService(), [&](const std::optional<Dissenter> &dissenter) {
    callback(dissenter);
    finished = true;
    platform.runLoop().stop();
  });
  platform.runLoop().run(finished);
}

/// The service may report success before the volume is listed. The length of this wait after a
/// refusal is deliberate.
void waitUntilMounted(const QString &partition) {
  Platform &platform = Platform::current();
  const auto deadline = platform.clock().now() + kConfirmationTime;
  while (platform.clock().now() <= deadline && !DiskArbitrator::isMountPointValid(partition)) {
    platform.runLoop().servePending();
  }
}

}  // namespace

const void *DiskArbitrator::sender() {
  // There are no instances, so a constant of the class is the sender.
  return &kEFISystemPartition;
}

void DiskArbitrator::sendNotificationWithMessage(const QString &message) {
  if (message.isEmpty()) return;
  NotificationCenter::defaultCenter().post(
      {kArbitratorNotification, sender(), {{kNoteKey, message}}});
}

bool DiskArbitrator::mountPartition(const QString &partition,
                                    const std::optional<QString> &atPath) {
  if (isThere(findMountPoint(partition))) return true;
  if (needsLegacyMode(partition)) return mountPartitionModeLegacy(partition, atPath);

  const bool hasPath = atPath.has_value() && !atPath->isEmpty();
  if (hasPath && isMountPointValid(*atPath)) return isSameDisk(partition, *atPath);
  if (hasPath && !isThere(*atPath)) {
    Platform::current().volumeFiles().makeFolder(*atPath, VolumeFiles::Parents::Make);
  }

  const QString disk = printed(findBSDName(partition));
  await(
      [&](DiskService &service, DiskService::Completion completion) {
        service.mount(disk, hasPath ? atPath : std::nullopt, std::move(completion));
      },
      [&](const std::optional<Dissenter> &dissenter) { mountCallback(disk, dissenter); });
  waitUntilMounted(partition);
  return isMountPointValid(partition);
}

bool DiskArbitrator::umountPartition(const QString &partition, bool forceUmount) {
  if (!isThere(findMountPoint(partition))) return true;
  if (needsLegacyMode(partition)) {
    umountPartitionModeLegacy(partition);
    return true;
  }

  using enum DiskService::UnmountOption;
  const QString disk = printed(findBSDName(partition));
  await(
      [&](DiskService &service, DiskService::Completion completion) {
        service.unmount(disk, forceUmount ? Force : Default, std::move(completion));
      },
      [&](const std::optional<Dissenter> &dissenter) { umountCallback(disk, dissenter); });
  return true;
}

void DiskArbitrator::mountCallback(const QString &disk, const std::optional<Dissenter> &dissenter) {
  if (!dissenter.has_value()) return;
  const QString reason = QString::fromLocal8Bit(daStatus(dissenter->status));
  sendNotificationWithMessage(u"mount failed for "_s + disk + ", status "_L1 + reason);
}

void DiskArbitrator::umountCallback(const QString &disk,
                                    const std::optional<Dissenter> &dissenter) {
  if (!dissenter.has_value()) return;
  if (dissenter->status == kDAReturnBusy) {
    NotificationCenter::defaultCenter().post(
        {kVolumeInUseNotification, sender(), {{kPartitionKey, disk}}});
  }
  const QString reason = QString::fromLocal8Bit(daStatus(dissenter->status));
  sendNotificationWithMessage(u"umount failed for "_s + disk + ", reason: "_L1 + reason);
}
