#pragma once

// What the parts of the fake share: the objects that it hands out by reference, and what it keeps
// for a machine.

#include <DiskArbitration/DiskArbitration.h>

#include <QObject>
#include <deque>
#include <functional>
#include <set>
#include <unordered_map>

#include "macos/fake/Fake.h"

namespace fake {

/// Whatever has a count of references. One that is gone stays as an empty shell until the machine
/// goes, so that its use is reported and does no harm.
struct Object {
  explicit Object(const char *typeName, const Value &standsFor = {})
      : type(typeName), value(standsFor) {}
  virtual ~Object() = default;

  /// The last reference has gone.
  virtual void end() {}
  bool isGone() const { return references == 0; }
  std::string description() const;

  const char *type;
  Value value;
  const char *maker = "";       // the function that made it
  std::vector<Object *> holds;  // a reference to each; a dictionary's are in the order of its keys
  long references = 1;
  bool isConstant = false;
};

/// By reference: the address, or the number of one of the kernel's.
std::unordered_map<const void *, std::unique_ptr<Object>> &objects();

/// Fails the test.
void report(const std::string &fault);
/// Fails it unless the function was asked for what the fake knows of it.
void expect(bool isKnown, const char *function = __builtin_FUNCTION());

/// Nothing for null.
void release(Object *object);

// New objects have one reference, which is the caller's.

Object *keep(std::unique_ptr<Object> object, const char *maker = __builtin_FUNCTION());
Object *make(const char *type, const Value &value = {}, const char *maker = __builtin_FUNCTION());
/// Of the type that the value has on the platform.
Object *objectOf(const Value &value, const char *maker = __builtin_FUNCTION());
/// For as long as the process lives; nobody may release it.
Object *makeConstant(const char *type, const Value &value = {});

/// The object that the function was given; null, after a report, when it is none, is gone or is of
/// another type than the function takes.
Object *checked(const void *reference, const char *type = nullptr,
                const char *function = __builtin_FUNCTION());
template <class T>
T *checked(const void *reference, const char *type, const char *function = __builtin_FUNCTION()) {
  return static_cast<T *>(checked(reference, type, function));
}

/// What it stands for; empty after a report.
template <class T>
T valueOf(const void *reference, const char *type, const char *function = __builtin_FUNCTION()) {
  const Object *const object = checked(reference, type, function);
  return object == nullptr ? T() : std::get<T>(object->value);
}
std::string textOf(const void *string, const char *function = __builtin_FUNCTION());
std::string pathOf(const void *url, const char *function = __builtin_FUNCTION());

/// The same object as the interface's own type of reference.
template <class Reference>
Reference as(Object *object) {
  return reinterpret_cast<Reference>(object);
}

struct DiskEntry {
  std::string name;  // the BSD name; the path of a volume without media
  Dictionary description;
  Listing listing;
  Answer onMount = {};
  Answer onUnmount = {};
};

struct Session : Object {
  Session() : Object("DASession") {}
  void end() override;
  std::set<std::string> modes;  // of the run loop, in which it is served
};

struct Delivery {
  Session *session;  // null: it does not matter how the run loop runs
  std::function<void()> deliver;
};

/// A callback with the disk service, or with the notification centre, which is no session's.
struct Listener {
  Session *session;
  std::string topic;  // "appeared", "disappeared", the key that is watched, a notification's name
  const void *callback;
  const void *context;
  std::function<void(const DiskEntry &)> call;
};

struct Monitor;

struct World {
  std::deque<Delivery> deliveries;
  std::vector<bool> runs;  // for each run of the run loop under way, whether it has been stopped
  QObject context;         // what Qt's event loop is to do for this machine
  std::vector<DiskEntry> disks;
  std::vector<std::shared_ptr<Listener>> listeners;
  std::vector<Monitor *> monitors;
  Dictionary unsavedPreferences;
};

/// The current machine's. Ends the program where there is none.
World &world();

void post(Session *session, std::function<void()> deliver);
/// Has Qt's event loop look for what can be delivered now.
void wake();

/// Null for a disk that is not there.
DiskEntry *entryOf(const std::string &name);

/// Queues the calls of who listens to one of the topics.
void announce(const std::set<std::string> &topics, const DiskEntry &entry);

}  // namespace fake
