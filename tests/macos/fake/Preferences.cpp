// The user's defaults, and the notifications that tell of their change.

#include "macos/fake/World.h"

using namespace fake;

void Machine::postNotification(const QString &name) {
  announce({name}, {});
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
  static Object *const center = makeConstant("CFNotificationCenter");
  return as<CFNotificationCenterRef>(center);
}

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter() {
  return CFNotificationCenterGetDistributedCenter();
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,
                                     CFNotificationCallback callback, CFStringRef name,
                                     const void *, CFNotificationSuspensionBehavior) {
  checked(center, "CFNotificationCenter");
  const auto call = [=](const DiskEntry &) {
    callback(center, const_cast<void *>(observer), nullptr, nullptr, nullptr);
  };
  world().listeners.push_back({nullptr, textOf(name), observer, call});
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center, const void *observer,
                                        CFNotificationName name, const void *) {
  checked(center, "CFNotificationCenter");
  std::erase_if(world().listeners, [=, topic = textOf(name)](const auto &each) {
    return each.session == nullptr && each.topic == topic && each.context == observer;
  });
}
