#include <gtest/gtest.h>

#include "macos/fake/World.h"

using namespace fake;

namespace {

Machine *currentMachine = nullptr;

std::set<Object *> &living() {
  static auto *const all =
      new std::set<Object *>;  // constants outlive everything that the exit destroys
  return *all;
}

}  // namespace

Object::Object(const char *typeName, const QVariant &standsFor) : type(typeName), value(standsFor) {
  living().insert(this);
}

Object::~Object() {
  living().erase(this);
  for (Object *each : holds) release(each);
}

Object *fake::makeConstant(const char *type, const QVariant &value) {
  auto *const object = new Object(type, value);
  object->isConstant = true;
  return object;
}

void fake::release(Object *object) {
  if (std::string_view(object->type) == "CFBoolean") return;  // two objects, which are not counted
  if (object->isConstant) report(std::string("A constant was released: ") + object->type);
  if (--object->references == 0) delete object;
}

void fake::report(const std::string &fault) {
  ADD_FAILURE() << fault;
}

void fake::expect(bool isKnown, const char *function) {
  if (!isKnown) report(std::string(function) + ": only what the program uses is known here");
}

Object *fake::checked(const void *reference, const char *type, const char *function) {
  auto *const object = static_cast<Object *>(const_cast<void *>(reference));
  if (!living().contains(object)) qFatal("%s was given no object, or one that is gone", function);
  const bool isRight = type == nullptr || std::string_view(type) == object->type;
  if (!isRight) qFatal("%s was given a %s, which is no %s", function, object->type, type);
  return object;
}

QVariant fake::valueOf(const void *reference, const char *type, const char *function) {
  return checked(reference, type, function)->value;
}

Machine &Machine::current() {
  if (currentMachine == nullptr) qFatal("The platform was called while there was no fake::Machine");
  return *currentMachine;
}

World &fake::world() {
  return Machine::current().world();
}

Machine::Machine() : _world(std::make_unique<World>()) {
  currentMachine = this;
  setWatchKeys(false);
}

Machine::~Machine() {
  serve();
  if (!_world->listeners.empty() || _world->watchedEvents != 0) report("An observer is left");
  if (_world->kernelReferences != 0) report("References to the kernel's objects are left, or lack");
  for (Object *object : living()) {
    if (std::exchange(object->isConstant, true)) continue;
    report(std::string("A reference is left: ") + object->type);
  }
  currentMachine = nullptr;
}

void CFRelease(CFTypeRef reference) {
  release(checked(reference));
}
