#pragma once

// Whatever the fake hands out by reference, with its count of references. An object that is gone
// stays as an empty shell until the machine goes, so that its use is reported and does no harm.

#include <memory>
#include <string>
#include <vector>

namespace fake {

struct Object {
  explicit Object(const char *typeName) : type(typeName) {}
  virtual ~Object() = default;

  /// What it stands for, in a report.
  virtual std::string text() const { return {}; }
  /// The last reference has gone.
  virtual void end() {}

  bool isGone() const { return references == 0; }
  std::string description() const;

  const char *type;             // the same pointer for all objects of a type
  const char *maker = "";       // the function that made it
  std::vector<Object *> holds;  // a reference to each
  long references = 1;
  bool isConstant = false;
};

/// Fails the test.
void report(const std::string &fault);

/// Null for what is no object of the fake.
Object *find(const void *reference);

void retain(Object &object);
void release(Object &object);

/// An object with one reference, which is the caller's.
Object *keep(std::unique_ptr<Object> object, const char *maker);

template <class T, class... Parts>
T *make(const char *maker, Parts... parts) {
  auto object = std::make_unique<T>(parts...);
  T *const result = object.get();
  keep(std::move(object), maker);
  return result;
}

/// An object for as long as the process lives, which nobody need release.
Object *keepForever(std::unique_ptr<Object> object);

/// The object that the function was given; null, after a report, when it is none, is gone or is of
/// another type than the function takes.
Object *usable(const void *reference, const char *function);
Object *checked(const void *reference, const char *type, const char *function);
template <class T>
T *checked(const void *reference, const char *function = __builtin_FUNCTION()) {
  return static_cast<T *>(checked(reference, T::kType, function));
}

/// The same object as the interface's own type of reference.
template <class Reference>
Reference as(Object *object) {
  return reinterpret_cast<Reference>(object);
}

}  // namespace fake
