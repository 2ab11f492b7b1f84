#include <gtest/gtest.h>

#include "macos/fake/World.h"

using namespace fake;

namespace {

Machine *currentMachine = nullptr;

}  // namespace

std::string Object::description() const {
  const auto *const text = std::get_if<std::string>(&value);
  return std::string(type) + " \"" + (text == nullptr ? "" : *text) + "\" (made by " + maker + ")";
}

std::unordered_map<const void *, std::unique_ptr<Object>> &fake::objects() {
  static std::unordered_map<const void *, std::unique_ptr<Object>> table;
  return table;
}

void fake::report(const std::string &fault) {
  ADD_FAILURE() << fault;
}

void fake::expect(bool isKnown, const char *function) {
  if (!isKnown) report(std::string(function) + ": only what the program uses is known here");
}

void fake::release(Object *object) {
  if (object == nullptr) return;
  if (object->isConstant || object->isGone()) {
    report(object->description() + " was released once too often");
  } else if (--object->references == 0) {
    object->end();
    for (Object *each : object->holds) release(each);
  }
}

Object *fake::keep(std::unique_ptr<Object> object, const char *maker) {
  Object *const result = object.get();
  result->maker = maker;
  objects().emplace(result, std::move(object));
  return result;
}

Object *fake::make(const char *type, const Value &value, const char *maker) {
  return keep(std::make_unique<Object>(type, value), maker);
}

Object *fake::makeConstant(const char *type, const Value &value) {
  Object *const result = make(type, value, "the platform");
  result->isConstant = true;
  return result;
}

Object *fake::checked(const void *reference, const char *type, const char *function) {
  const auto place = objects().find(reference);
  Object *const object = place == objects().end() ? nullptr : place->second.get();
  std::string fault;
  if (object == nullptr) {
    fault = reference == nullptr ? "NULL" : "what is no object";
  } else if (object->isGone()) {
    fault = object->description() + ", which is gone";
  } else if (type != nullptr && std::string(type) != object->type) {
    fault = object->description() + ", which is no " + type;
  }
  if (fault.empty()) return object;
  report(std::string(function) + " was given " + fault);
  return nullptr;
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
}

Machine::~Machine() {
  // The references to each object that no other living one holds.
  std::unordered_map<const Object *, long> tooMany;
  for (const auto &[reference, object] : objects()) {
    if (object->isGone() || object->isConstant) continue;
    tooMany[object.get()] += object->references;
    for (const Object *each : object->holds) --tooMany[each];
  }
  std::string leaks;
  for (const auto &[object, count] : tooMany) {
    if (count > 0) leaks += object->description() + ", " + std::to_string(count) + " too many\n";
  }
  for (const auto &each : _world->listeners) {
    if (each->session == nullptr) leaks += "an observer of \"" + each->topic + "\"\n";
  }
  if (!leaks.empty()) report("Left behind:\n" + leaks);
  std::erase_if(objects(), [](const auto &each) { return !each.second->isConstant; });
  currentMachine = nullptr;
}

void CFRelease(CFTypeRef reference) {
  release(checked(reference));
}
