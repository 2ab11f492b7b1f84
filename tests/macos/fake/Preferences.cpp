// The user's defaults, and the notifications that tell of their change.

#include <CoreFoundation/CoreFoundation.h>

#include <algorithm>

#include "macos/fake/Values.h"
#include "macos/fake/World.h"

namespace fake {

namespace {

struct Center : Object {
  static constexpr char kType[] = "CFNotificationCenter";
  Center() : Object(kType) {}
};

/// Those that an application's name stands for.
Dictionary preferencesOf(CFStringRef application, const char *function) {
  const auto name = textOf(application, function);
  if (name == "kCFPreferencesAnyApplication") return Machine::current().globalPreferences;
  if (name != "kCFPreferencesCurrentApplication") {
    report(std::string(function) + ": this application is not known here");
    return {};
  }
  Dictionary result = Machine::current().preferences;
  for (const auto &[key, value] : world().unsavedPreferences) {
    result.erase(key);
    if (value.has_value()) result[key] = *value;
  }
  return result;
}

CFPropertyListRef copyFrom(const Dictionary &values, CFStringRef key, const char *function) {
  const auto place = values.find(textOf(key, function).value_or(""));
  return place == values.end() ? nullptr : objectOf(place->second, function);
}

}  // namespace

void Machine::postDistributedNotification(const std::string &name) {
  for (const Observer &each : world().observers) {
    if (each.name != name) continue;
    post({isCommonMode, [each] {
            const auto &live = fake::world().observers;
            if (std::find(live.begin(), live.end(), each) == live.end()) return;
            const auto center = as<CFNotificationCenterRef>(lasting<Center>());
            Object *const text = make<String>("a notification", each.name);
            each.callback(center, const_cast<void *>(each.observer), as<CFStringRef>(text), nullptr,
                          nullptr);
            release(*text);
          }});
  }
}

}  // namespace fake

using namespace fake;

CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef application, CFStringRef user,
                                         CFStringRef host) {
  if (user != kCFPreferencesCurrentUser || host != kCFPreferencesAnyHost) {
    report("CFPreferencesCopyValue: only this user on any host is known here");
  }
  return copyFrom(preferencesOf(application, __func__), key, __func__);
}

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application) {
  Dictionary values = preferencesOf(application, __func__);
  values.merge(Dictionary(Machine::current().globalPreferences));  // where it has none of its own
  return copyFrom(values, key, __func__);
}

void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef application) {
  const auto name = textOf(key);
  if (application != kCFPreferencesCurrentApplication) {
    report("CFPreferencesSetAppValue: not for this application");
  }
  const Object *const object = value == nullptr ? nullptr : find(value);
  if (!name.has_value()) return;
  world().unsavedPreferences[*name] =
      object == nullptr ? std::nullopt : std::optional<Value>(valueOf(*object));
}

Boolean CFPreferencesAppSynchronize(CFStringRef application) {
  Machine::current().preferences = preferencesOf(application, __func__);
  world().unsavedPreferences.clear();
  return true;
}

CFNotificationCenterRef CFNotificationCenterGetDistributedCenter() {
  return as<CFNotificationCenterRef>(lasting<Center>());
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,
                                     CFNotificationCallback callback, CFStringRef name,
                                     const void *, CFNotificationSuspensionBehavior) {
  const auto text = textOf(name);
  if (checked<Center>(center) == nullptr || !text.has_value()) return;
  world().observers.push_back({observer, callback, *text});
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center, const void *observer,
                                        CFNotificationName name, const void *) {
  const auto text = name == nullptr ? std::nullopt : textOf(name);
  if (checked<Center>(center) == nullptr) return;
  const auto count = std::erase_if(world().observers, [&](const Observer &each) {
    return each.observer == observer && (name == nullptr || each.name == text);
  });
  if (count == 0) report("CFNotificationCenterRemoveObserver: no such observer");
}
