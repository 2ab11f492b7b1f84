// The user's defaults, and the notifications that tell of their change.

#include "macos/fake/World.h"

using namespace fake;

namespace {

CFPropertyListRef copyFrom(const Dictionary &values, CFStringRef key, const char *function) {
  const auto place = values.find(textOf(key, function));
  return place == values.end() ? nullptr : objectOf(place->second, function);
}

}  // namespace

void Machine::postDistributedNotification(const std::string &name) {
  announce({name}, {});
}

CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef application, CFStringRef user,
                                         CFStringRef host) {
  expect(application == kCFPreferencesAnyApplication);
  expect(user == kCFPreferencesCurrentUser && host == kCFPreferencesAnyHost);
  return copyFrom(Machine::current().globalPreferences, key, __func__);
}

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application) {
  expect(application == kCFPreferencesCurrentApplication);
  Dictionary values = world().unsavedPreferences;
  values.merge(Dictionary(Machine::current().preferences));
  return copyFrom(values, key, __func__);
}

void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef application) {
  expect(application == kCFPreferencesCurrentApplication);
  const Object *const object = checked(value);
  if (object != nullptr) world().unsavedPreferences[textOf(key)] = object->value;
}

Boolean CFPreferencesAppSynchronize(CFStringRef application) {
  expect(application == kCFPreferencesCurrentApplication);
  world().unsavedPreferences.merge(Machine::current().preferences);
  Machine::current().preferences = std::exchange(world().unsavedPreferences, {});
  return true;
}

CFNotificationCenterRef CFNotificationCenterGetDistributedCenter() {
  static Object *const center = makeConstant("CFNotificationCenter");
  return as<CFNotificationCenterRef>(center);
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,
                                     CFNotificationCallback callback, CFStringRef name,
                                     const void *, CFNotificationSuspensionBehavior) {
  checked(center, "CFNotificationCenter");
  const auto call = [=](const DiskEntry &) {
    callback(center, const_cast<void *>(observer), nullptr, nullptr, nullptr);
  };
  world().listeners.emplace_back(new Listener{nullptr, textOf(name), nullptr, observer, call});
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center, const void *observer,
                                        CFNotificationName name, const void *) {
  checked(center, "CFNotificationCenter");
  const auto count = std::erase_if(world().listeners, [=, topic = textOf(name)](const auto &each) {
    return each->session == nullptr && each->topic == topic && each->context == observer;
  });
  if (count == 0) report("CFNotificationCenterRemoveObserver: no such observer");
}
