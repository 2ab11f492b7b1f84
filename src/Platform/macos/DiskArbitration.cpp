#include "Platform/macos/DiskArbitration.h"

#include <DiskArbitration/DiskArbitration.h>
#include <dispatch/dispatch.h>

#include <QCoreApplication>

#include "Platform/macos/Values.h"

// Shared ownership: a request may outlive its `DiskArbitration` while the system's library uses it.
struct DiskArbitration::Request : std::enable_shared_from_this<Request> {
  DiskArbitration *service = nullptr;  // null once the request has been dropped
  Completion completion;
  Owned<DASessionRef> session;
  Owned<DADiskRef> disk;

  void complete(const std::optional<quint32> &status) {
    if (service == nullptr) return;
    service->drop(*this);
    completion(status);
  }

  // A refusal may come inside the request, on the queue where the request is made.
  static void finish(DADiskRef, DADissenterRef dissenter, void *context) {
    std::optional<quint32> status;
    if (dissenter != nullptr) status = static_cast<quint32>(DADissenterGetStatus(dissenter));
    const auto request = static_cast<Request *>(context)->shared_from_this();
    QMetaObject::invokeMethod(qApp, [request, status] { request->complete(status); });
  }
};

namespace {

void onAnotherQueue(std::function<void()> work) {
  using Work = std::function<void()>;
  const auto run = [](void *context) {
    const std::unique_ptr<Work> owned(static_cast<Work *>(context));
    (*owned)();
  };
  dispatch_async_f(dispatch_get_global_queue(0, 0), new Work(std::move(work)), run);
}

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
  const CFTypeRef icon = CFDictionaryGetValue(description, ::kDADiskDescriptionMediaIconKey);
  if (icon == nullptr) return;
  QVariantMap values;
  for (const QString &key :
       {QStringLiteral("CFBundleIdentifier"), QStringLiteral("IOBundleResourceFile")}) {
    if (const QVariant value = valueIn(icon, key); value.isValid()) values.insert(key, value);
  }
  record.insert(*textOf(::kDADiskDescriptionMediaIconKey), values);
}

std::optional<DiskArbitration::Record> recordOf(const Owned<DADiskRef> &disk) {
  if (!disk) return std::nullopt;
  const Owned<CFDictionaryRef> description(DADiskCopyDescription(disk.get()));
  if (!description) return std::nullopt;
  DiskArbitration::Record record;
  for (const CFStringRef key :
       {::kDADiskDescriptionMediaBSDNameKey, ::kDADiskDescriptionMediaBSDUnitKey,
        ::kDADiskDescriptionMediaNameKey, ::kDADiskDescriptionMediaContentKey,
        ::kDADiskDescriptionMediaUUIDKey, ::kDADiskDescriptionMediaWritableKey,
        ::kDADiskDescriptionMediaEjectableKey, ::kDADiskDescriptionVolumeNameKey,
        ::kDADiskDescriptionVolumePathKey, ::kDADiskDescriptionVolumeKindKey,
        ::kDADiskDescriptionVolumeUUIDKey, ::kDADiskDescriptionDeviceProtocolKey,
        ::kDADiskDescriptionDeviceInternalKey}) {
    insertValue(record, description.get(), key);
  }
  insertIcon(record, description.get());
  return record;
}

}  // namespace

DiskArbitration::DiskArbitration() = default;

DiskArbitration::~DiskArbitration() {
  while (!_requests.empty()) drop(*_requests.back());
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

// On another queue, because the library may block in the request to ask for a password.
void DiskArbitration::ask(const QString &bsdName, Completion completion, Question question) {
  Owned<DASessionRef> session = openSession();
  Owned<DADiskRef> disk = diskNamed(bsdName, session);
  if (!disk)
    return completion(static_cast<quint32>(session ? ::kDAReturnNotFound : ::kDAReturnNotReady));
  DASessionScheduleWithRunLoop(session.get(), CFRunLoopGetMain(), kCFRunLoopDefaultMode);
  const auto request = _requests.emplace_back(std::make_shared<Request>());
  request->service = this;
  request->completion = std::move(completion);
  request->session = std::move(session);
  request->disk = std::move(disk);
  onAnotherQueue([request, question = std::move(question)] { question(*request); });
}

void DiskArbitration::answerAll(quint32 status) {
  const auto pending = _requests;
  for (const auto &request : pending) request->complete(status);
}

void DiskArbitration::drop(Request &request) {
  DASessionUnscheduleFromRunLoop(request.session.get(), CFRunLoopGetMain(), kCFRunLoopDefaultMode);
  request.service = nullptr;
  std::erase_if(_requests, [&](const auto &each) { return each.get() == &request; });
}

void DiskArbitration::mount(const QString &bsdName, const std::optional<QString> &path,
                            Completion completion) {
  ask(bsdName, std::move(completion), [path](Request &request) {
    const Owned<CFURLRef> url = path ? makeFolderUrl(*path) : Owned<CFURLRef>();
    DADiskMountWithArguments(request.disk.get(), url.get(), kDADiskMountOptionDefault,
                             Request::finish, &request, nullptr);
  });
}

void DiskArbitration::unmount(const QString &bsdName, bool isForced, Completion completion) {
  ask(bsdName, std::move(completion), [isForced](Request &request) {
    const DADiskUnmountOptions option =
        isForced ? kDADiskUnmountOptionForce : kDADiskUnmountOptionDefault;
    DADiskUnmount(request.disk.get(), option, Request::finish, &request);
  });
}
