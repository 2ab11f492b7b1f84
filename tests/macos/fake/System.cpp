// The program's bundle and executable, driver bundles, login items, user defaults and their
// notifications, and the facts about a mounted volume.

#include <CoreServices/CoreServices.h>
#include <IOKit/kext/KextManager.h>
#include <libproc.h>
#include <mach-o/dyld.h>
#include <sys/mount.h>

#include <QDir>
#include <cstring>

#include "macos/fake/World.h"

using namespace fake;

namespace {

CFURLRef urlOf(const QString &path) {
  return path.isEmpty() ? nullptr : as<CFURLRef>(objectOf(QUrl::fromLocalFile(path)));
}

}  // namespace

CFURLRef KextManagerCreateURLForBundleIdentifier(CFAllocatorRef, CFStringRef identifier) {
  return urlOf(Machine::current().driverBundles.value(textOf(identifier)).toString());
}

CFBundleRef CFBundleGetMainBundle() {
  return nullptr;
}

CFURLRef CFBundleCopyBundleURL(CFBundleRef) {
  return urlOf("/Applications/Keldra.app");
}

CFBundleRef CFBundleCreate(CFAllocatorRef, CFURLRef url) {
  const QString path = pathOf(url);
  return QDir(path).exists() ? as<CFBundleRef>(new Object("CFBundle", path)) : nullptr;
}

CFURLRef CFBundleCopyResourceURL(CFBundleRef bundle, CFStringRef name, CFStringRef type,
                                 CFStringRef) {
  const QDir folder(valueOf(bundle, "CFBundle").toString() + "/Contents/Resources");
  const QString base = textOf(name).isEmpty() ? "*" : textOf(name);
  const QStringList found = folder.entryList({base + '.' + textOf(type)}, QDir::Files);
  return found.isEmpty() ? nullptr : urlOf(folder.filePath(found.first()));
}

int _NSGetExecutablePath(char *buffer, std::uint32_t *size) {
  const std::string &path = Machine::current().executable;
  buffer[path.copy(buffer, *size - 1)] = 0;
  return 0;
}

constexpr OSStatus kFileNotFound = -43;
constexpr char kItem[] = "LSSharedFileListItem";

LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef, CFStringRef, CFTypeRef) {
  return as<LSSharedFileListRef>(new Object("LSSharedFileList"));
}

CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef, UInt32 *) {
  auto *const snapshot = new Object("CFArray");
  for (const QString &location : Machine::current().loginItems) {
    snapshot->holds.push_back(new Object(kItem, location));
  }
  return as<CFArrayRef>(snapshot);
}

OSStatus LSSharedFileListItemResolve(LSSharedFileListItemRef item,
                                     LSSharedFileListResolutionFlags flags, CFURLRef *url,
                                     struct FSRef *) {
  expect(flags == (kLSSharedFileListNoUserInteraction | kLSSharedFileListDoNotMountVolumes));
  const QString location = valueOf(item, kItem).toString();
  if (location.isEmpty()) return kFileNotFound;
  *url = as<CFURLRef>(objectOf(QUrl::fromLocalFile(location)));
  return 0;
}

LSSharedFileListItemRef LSSharedFileListInsertItemURL(LSSharedFileListRef, LSSharedFileListItemRef,
                                                      CFStringRef, IconRef, CFURLRef url,
                                                      CFDictionaryRef, CFArrayRef) {
  Machine::current().loginItems.append(pathOf(url));
  return as<LSSharedFileListItemRef>(new Object(kItem, pathOf(url)));
}

OSStatus LSSharedFileListItemRemove(LSSharedFileListRef, LSSharedFileListItemRef item) {
  const QString location = valueOf(item, kItem).toString();
  return Machine::current().loginItems.removeOne(location) ? 0 : kFileNotFound;
}

void Machine::postNotification(const QString &name) {
  announce({name});
}

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef) {
  const QVariant value = Machine::current().preferences.value(textOf(key));
  return value.isValid() ? objectOf(value) : nullptr;
}

void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef) {
  Machine::current().preferences[textOf(key)] = checked(value)->value;
}

Boolean CFPreferencesAppSynchronize(CFStringRef) {
  return true;
}

CFNotificationCenterRef CFNotificationCenterGetDistributedCenter() {
  return nullptr;
}

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter() {
  return nullptr;
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,
                                     CFNotificationCallback callback, CFStringRef name,
                                     const void *, CFNotificationSuspensionBehavior) {
  const auto call = [=](const QString &, const QVariantMap &) {
    callback(center, const_cast<void *>(observer), nullptr, nullptr, nullptr);
  };
  world().listeners.push_back({nullptr, textOf(name), observer, call});
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef, const void *observer,
                                        CFNotificationName name, const void *) {
  std::erase_if(world().listeners, [=, topic = textOf(name)](const auto &each) {
    return each.session == nullptr && each.topic == topic && each.context == observer;
  });
}

int statfs(const char *path, struct statfs *result) {
  result->f_fssubtype = Machine::current().fileSystemSubtypes[path];
  return 0;
}

int proc_listpidspath(uint32_t type, uint32_t, const char *path, uint32_t pathflags, void *buffer,
                      int) {
  expect(type == PROC_ALL_PIDS &&
         pathflags == (PROC_LISTPIDSPATH_PATH_IS_VOLUME | PROC_LISTPIDSPATH_EXCLUDE_EVTONLY));
  std::vector<int> users;
  for (const auto &[number, process] : Machine::current().processes) {
    if (process.first == path) users.push_back(number);
  }
  std::memcpy(buffer, users.data(), users.size() * sizeof(int));
  return static_cast<int>(users.size() * sizeof(int));
}

int proc_name(int number, void *buffer, uint32_t buffersize) {
  const std::string &name = Machine::current().processes.at(number).second;
  return static_cast<int>(name.copy(static_cast<char *>(buffer), buffersize));
}
