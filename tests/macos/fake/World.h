#pragma once

// Shared by the parts of the fake: the reference-counted objects, and the state of a machine.

#include <DiskArbitration/DiskArbitration.h>

#include <QObject>
#include <QUrl>
#include <deque>
#include <functional>

#include "macos/fake/Fake.h"

namespace fake {

/// An object with a reference count. A new one has the count 1, which the caller owns.
struct Object {
  explicit Object(const char *typeName, const QVariant &standsFor = {});
  virtual ~Object();
  Object(const Object &) = delete;
  Object &operator=(const Object &) = delete;

  const char *type;
  QVariant value;
  std::vector<Object *> holds;  // a reference to each; a dictionary's are in the order of its keys
  long references = 1;
  bool isConstant = false;
};

/// An object of the type that the value has on the platform.
Object *objectOf(const QVariant &value);
/// Lives until the process exits; must not be released.
Object *makeConstant(const char *type, const QVariant &value = {});
void release(Object *object);

/// Fails the test.
void report(const std::string &fault);
/// Fails the test unless the call is one that the fake supports.
void expect(bool isKnown, const char *function = __builtin_FUNCTION());

/// The object that the function got. Aborts the program when it is null, destroyed or of another
/// type than the function takes, as a Mac would.
Object *checked(const void *reference, const char *type = nullptr,
                const char *function = __builtin_FUNCTION());
/// The value of the object.
QVariant valueOf(const void *reference, const char *type,
                 const char *function = __builtin_FUNCTION());
QString textOf(const void *string, const char *function = __builtin_FUNCTION());
QString pathOf(const void *url, const char *function = __builtin_FUNCTION());

/// The object as a reference of the interface's type.
template <class Reference>
Reference as(Object *object) {
  return reinterpret_cast<Reference>(object);
}

struct Session : Object {
  Session() : Object("DASession") {}
  ~Session() override;
  QStringList modes;  // the run loop's modes in which it is served
};

/// A callback of the disk service, or of a notification centre, which has no session.
struct Listener {
  Session *session;
  QString topic;  // "appeared", "disappeared", the watched key, a notification's name
  const void *context;
  std::function<void(const QString &disk, const QVariantMap &description)> call;
};

struct World {
  QObject context;  // owns what Qt's event loop must do for this machine
  // By session; null for a call in any mode of the run loop.
  std::deque<std::pair<Session *, std::function<void()>>> deliveries;
  std::vector<bool> runs;  // for each active run of the run loop, whether it has been stopped
  QMap<QString, QVariantMap> disks;  // descriptions, by BSD name or path of a volume without media
  std::vector<Listener> listeners;
  quint32 nextMedium = 0;  // an index of the disks, for the registry's iterator
  int kernelReferences = 0;
  std::uintptr_t watchedEvents = 0;  // the event monitor's mask, and the block that it calls
  QByteArray handler;
};

/// The current machine's world. Aborts the program where there is none.
World &world();

void post(Session *session, std::function<void()> deliver);

/// Queues the callbacks for these topics, with the disk's present description.
void announce(const QStringList &topics, const QString &disk = {});

/// The service's library creates the keys when the first session is opened.
void setWatchKeys(bool areThere);

}  // namespace fake
