#include "Platform/macos/DiskArbitration.h"

#include <DiskArbitration/DiskArbitration.h>

#include <algorithm>

#include "Platform/macos/Values.h"

struct DiskArbitration::Request {
  DiskArbitration &service;
  Completion completion;
  Owned<DASessionRef> session;
  Owned<DADiskRef> disk;
};

struct DiskArbitration::Callbacks {
  // May be called inside the request itself, whose caller holds on to it.
  static void finish(DADiskRef, DADissenterRef dissenter, void *context) {
    auto *asked = static_cast<Request *>(context);
    const std::shared_ptr<Request> request = asked->service.take(asked);
    if (!request) return;
    std::optional<quint32> status;
    if (dissenter != nullptr) status = static_cast<quint32>(DADissenterGetStatus(dissenter));
    request->completion(status);
  }
};

namespace {

Owned<DASessionRef> openSession() {
  return Owned<DASessionRef>(DASessionCreate(kCFAllocatorDefault));
}

Owned<DADiskRef> diskNamed(const QString &bsdName, const Owned<DASessionRef> &session) {
  if (!session) return {};
  return Owned<DADiskRef>(
      DADiskCreateFromBSDName(kCFAllocatorDefault, session.get(), bsdName.toUtf8().constData()));
}

void insertValue(DiskArbitration::Record &record, CFDictionaryRef description, CFStringRef key) {
  const QVariant value = valueOf(CFDictionaryGetValue(description, key));
  if (value.isValid()) record.insert(*textOf(key), value);
}

void insertIcon(DiskArbitration::Record &record, CFDictionaryRef description) {
  const CFTypeRef icon = CFDictionaryGetValue(description, kDADiskDescriptionMediaIconKey);
  if (icon == nullptr) return;
  QVariantMap values;
  for (const QString &key :
       {QStringLiteral("CFBundleIdentifier"), QStringLiteral("IOBundleResourceFile")}) {
    if (const QVariant value = valueIn(icon, key); value.isValid()) values.insert(key, value);
  }
  record.insert(*textOf(kDADiskDescriptionMediaIconKey), values);
}

std::optional<DiskArbitration::Record> recordOf(const Owned<DADiskRef> &disk) {
  if (!disk) return std::nullopt;
  const Owned<CFDictionaryRef> description(DADiskCopyDescription(disk.get()));
  if (!description) return std::nullopt;
  DiskArbitration::Record record;
  for (const CFStringRef key :
       {kDADiskDescriptionMediaBSDNameKey, kDADiskDescriptionMediaBSDUnitKey,
        kDADiskDescriptionMediaNameKey, kDADiskDescriptionMediaContentKey,
        kDADiskDescriptionMediaUUIDKey, kDADiskDescriptionMediaWritableKey,
        kDADiskDescriptionMediaEjectableKey, kDADiskDescriptionVolumeNameKey,
        kDADiskDescriptionVolumePathKey, kDADiskDescriptionVolumeKindKey,
        kDADiskDescriptionVolumeUUIDKey, kDADiskDescriptionDeviceProtocolKey,
        kDADiskDescriptionDeviceInternalKey}) {
    insertValue(record, description.get(), key);
  }
  insertIcon(record, description.get());
  return record;
}

}  // namespace

DiskArbitration::DiskArbitration() = default;

DiskArbitration::~DiskArbitration() {
  while (!_requests.empty()) take(_requests.back().get());
}

bool DiskArbitration::answers() {
  return static_cast<bool>(openSession());
}

std::optional<DiskArbitration::Record> DiskArbitration::recordOfMedia(const QString &bsdName) {
  const Owned<DASessionRef> session = openSession();
  return recordOf(diskNamed(bsdName, session));
}

std::optional<DiskArbitration::Record> DiskArbitration::recordOfVolume(const QString &path) {
  const Owned<DASessionRef> session = openSession();
  const Owned<CFURLRef> url = makeFolderUrl(path);
  if (!session || !url) return std::nullopt;
  return recordOf(
      Owned<DADiskRef>(DADiskCreateFromVolumePath(kCFAllocatorDefault, session.get(), url.get())));
}

// Nothing is asked, and the result is null, when there is nobody to ask or no such disk could be.
std::shared_ptr<DiskArbitration::Request> DiskArbitration::begin(const QString &bsdName,
                                                                 Completion completion) {
  Owned<DASessionRef> session = openSession();
  Owned<DADiskRef> disk = diskNamed(bsdName, session);
  if (!disk) {
    completion(static_cast<quint32>(session ? kDAReturnNotFound : kDAReturnNotReady));
    return nullptr;
  }
  DASessionScheduleWithRunLoop(session.get(), CFRunLoopGetCurrent(), kCFRunLoopDefaultMode);
  _requests.push_back(std::make_shared<Request>(
      Request{*this, std::move(completion), std::move(session), std::move(disk)}));
  return _requests.back();
}

// Null when it has been taken before.
std::shared_ptr<DiskArbitration::Request> DiskArbitration::take(const Request *request) {
  const auto found = std::find_if(_requests.begin(), _requests.end(),
                                  [&](const auto &each) { return each.get() == request; });
  if (found == _requests.end()) return nullptr;
  std::shared_ptr<Request> taken = std::move(*found);
  _requests.erase(found);
  DASessionUnscheduleFromRunLoop(taken->session.get(), CFRunLoopGetCurrent(),
                                 kCFRunLoopDefaultMode);
  return taken;
}

void DiskArbitration::mount(const QString &bsdName, const std::optional<QString> &path,
                            Completion completion) {
  const std::shared_ptr<Request> request = begin(bsdName, std::move(completion));
  if (!request) return;
  const Owned<CFURLRef> url = path ? makeFolderUrl(*path) : Owned<CFURLRef>();
  DADiskMountWithArguments(request->disk.get(), url.get(), kDADiskMountOptionDefault,
                           Callbacks::finish, request.get(), nullptr);
}

void DiskArbitration::unmount(const QString &bsdName, bool isForced, Completion completion) {
  const std::shared_ptr<Request> request = begin(bsdName, std::move(completion));
  if (!request) return;
  const DADiskUnmountOptions option =
      isForced ? kDADiskUnmountOptionForce : kDADiskUnmountOptionDefault;
  DADiskUnmount(request->disk.get(), option, Callbacks::finish, request.get());
}
