#include "Platform/macos/MacUserDefaults.h"

#include "Platform/macos/Values.h"

QVariant MacUserDefaults::object(const QString &key) const {
  const Owned<CFPropertyListRef> value(
      CFPreferencesCopyAppValue(makeText(key).get(), kCFPreferencesCurrentApplication));
  return valueOf(value.get());
}

void MacUserDefaults::setBool(const QString &key, bool value) {
  CFPreferencesSetAppValue(makeText(key).get(), value ? kCFBooleanTrue : kCFBooleanFalse,
                           kCFPreferencesCurrentApplication);
}

void MacUserDefaults::synchronize() {
  CFPreferencesAppSynchronize(kCFPreferencesCurrentApplication);
}
