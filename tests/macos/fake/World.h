#pragma once

// What the parts of the fake keep for a machine.

#include <CoreFoundation/CoreFoundation.h>

#include <QObject>
#include <deque>
#include <functional>
#include <set>
#include <unordered_map>

#include "macos/fake/Fake.h"
#include "macos/fake/Objects.h"

namespace fake {

struct Session;
struct Monitor;

struct Delivery {
  std::function<bool(const std::string &mode)> isServedIn;
  std::function<void()> deliver;
};

/// Of the distributed notification centre.
struct Observer {
  const void *observer;
  CFNotificationCallback callback;
  std::string name;

  bool operator==(const Observer &) const = default;
};

struct DiskEntry {
  std::string name;  // the BSD name; the path of a volume without media
  Dictionary description;
  Listing listing = Listing::Named;
  Answer onMount = {};
  Answer onUnmount = {};
  bool hasMadeFolder = false;  // at its mount point
};

struct World {
  std::unordered_map<const void *, std::unique_ptr<Object>> objects;
  std::vector<Object *> lasting;  // the machine's own references, for "Get" functions

  std::deque<Delivery> deliveries;
  long delivered = 0;
  std::vector<bool> runs;  // for each run of the run loop under way, whether it has been stopped
  QObject context;         // what Qt's event loop is to do for this machine

  std::vector<DiskEntry> disks;
  std::vector<Session *> sessions;
  std::map<unsigned, Object *> kernelObjects;

  std::map<std::string, std::optional<Value>> unsavedPreferences;  // absent: to be removed
  std::vector<Observer> observers;
  std::vector<Monitor *> monitors;
};

/// The current machine's. Ends the program where there is none.
World &world();

/// An object of the machine itself, made when it is first asked for.
template <class T>
T *lasting() {
  for (Object *each : world().lasting) {
    if (each->type == T::kType) return static_cast<T *>(each);
  }
  T *const object = make<T>("the machine");
  world().lasting.push_back(object);
  return object;
}

void post(Delivery delivery);
/// Has Qt's event loop look for what can be delivered now.
void wake();
bool isCommonMode(const std::string &mode);

}  // namespace fake
