#pragma once

// What the parts of the fake share: the objects that it hands out by reference, and what it keeps
// for a machine.

#include <DiskArbitration/DiskArbitration.h>

#include <QObject>
#include <QUrl>
#include <deque>
#include <functional>

#include "macos/fake/Fake.h"

namespace fake {

/// Whatever has a count of references. A new one has one, which is the caller's.
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

/// Of the type that the value has on the platform.
Object *objectOf(const QVariant &value);
/// For as long as the process lives; nobody may release it.
Object *makeConstant(const char *type, const QVariant &value = {});
void release(Object *object);

/// Fails the test.
void report(const std::string &fault);
/// Fails it unless the function was asked for what the fake knows of it.
void expect(bool isKnown, const char *function = __builtin_FUNCTION());

/// The object that the function was given. Ends the program when it is none, is gone or is of
/// another type than the function takes, as a Mac would.
Object *checked(const void *reference, const char *type = nullptr,
                const char *function = __builtin_FUNCTION());
/// What it stands for.
QVariant valueOf(const void *reference, const char *type,
                 const char *function = __builtin_FUNCTION());
QString textOf(const void *string, const char *function = __builtin_FUNCTION());
QString pathOf(const void *url, const char *function = __builtin_FUNCTION());

/// The same object as the interface's own type of reference.
template <class Reference>
Reference as(Object *object) {
  return reinterpret_cast<Reference>(object);
}

struct Session : Object {
  Session() : Object("DASession") {}
  ~Session() override;
  QStringList modes;  // of the run loop, in which it is served
};

/// What is called back by the disk service, or by a notification centre, which is no session's.
struct Listener {
  Session *session;
  QString topic;  // "appeared", "disappeared", the key that is watched, a notification's name
  const void *context;
  std::function<void(const QString &disk, const QVariantMap &description)> call;
};

struct World {
  QObject context;  // what Qt's event loop is to do for this machine
  // For a session; for none when it does not matter how the run loop runs.
  std::deque<std::pair<Session *, std::function<void()>>> deliveries;
  std::vector<bool> runs;  // for each run of the run loop under way, whether it has been stopped
  QMap<QString, QVariantMap> disks;  // descriptions, by BSD name or path of a volume without media
  std::vector<Listener> listeners;
  quint32 nextMedium = 0;  // of the disks, for the registry's iterator
  int kernelReferences = 0;
  std::uintptr_t watchedEvents = 0;  // the mask of the event monitor, and the block that it calls
  QByteArray handler;
};

/// The current machine's. Ends the program where there is none.
World &world();

void post(Session *session, std::function<void()> deliver);

/// Queues the calls of who listens to one of the topics, with the disk as it is now.
void announce(const QStringList &topics, const QString &disk = {});

/// The service's library makes them when the first session is opened.
void setWatchKeys(bool areThere);

}  // namespace fake
