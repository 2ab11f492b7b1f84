#pragma once

// While an object of this class exists, a callback is called for each notification of a name.
//
//   const Observation theme(CFNotificationCenterGetDistributedCenter(),
//                           QStringLiteral("AppleInterfaceThemeChangedNotification"), this, callback);

#include "Platform/macos/Values.h"

class Observation {
 public:
  /// The callback gets `observer`, which identifies the observation.
  Observation(CFNotificationCenterRef center, const QString &name, void *observer,
              CFNotificationCallback callback)
      : _center(center), _name(makeText(name)), _observer(observer) {
    CFNotificationCenterAddObserver(_center, _observer, callback, _name.get(), nullptr,
                                    CFNotificationSuspensionBehaviorDeliverImmediately);
  }
  ~Observation() { CFNotificationCenterRemoveObserver(_center, _observer, _name.get(), nullptr); }
  Observation(const Observation &) = delete;
  Observation &operator=(const Observation &) = delete;

 private:
  CFNotificationCenterRef _center;
  Owned<CFStringRef> _name;
  void *_observer;
};
