#include "macos/fake/Objects.h"

#include <CoreFoundation/CoreFoundation.h>
#include <gtest/gtest.h>

#include "macos/fake/Values.h"
#include "macos/fake/World.h"

namespace fake {

namespace {

using ObjectTable = std::unordered_map<const void *, std::unique_ptr<Object>>;

ObjectTable &constants() {
  static ObjectTable table;
  return table;
}

Object *findIn(const ObjectTable &table, const void *reference) {
  const auto place = table.find(reference);
  return place == table.end() ? nullptr : place->second.get();
}

}  // namespace

std::string Object::description() const {
  return std::string(type) + " \"" + text() + "\" (made by " + maker + ")";
}

void report(const std::string &fault) {
  ADD_FAILURE() << fault;
}

Object *find(const void *reference) {
  Object *const constant = findIn(constants(), reference);
  return constant != nullptr ? constant : findIn(world().objects, reference);
}

void retain(Object &object) {
  if (!object.isConstant) ++object.references;
}

void release(Object &object) {
  if (object.isConstant) return;
  if (object.isGone()) {
    report(object.description() + " was released once too often");
    return;
  }
  if (--object.references > 0) return;
  object.end();
  for (Object *each : object.holds) release(*each);
}

Object *keep(std::unique_ptr<Object> object, const char *maker) {
  Object *const result = object.get();
  result->maker = maker;
  world().objects.emplace(result, std::move(object));
  return result;
}

Object *keepForever(std::unique_ptr<Object> object) {
  Object *const result = object.get();
  result->maker = "the platform";
  result->isConstant = true;
  constants().emplace(result, std::move(object));
  return result;
}

Object *usable(const void *reference, const char *function) {
  Object *const object = find(reference);
  if (object != nullptr && !object->isGone()) return object;
  const std::string what = object != nullptr      ? object->description() + ", which is gone"
                           : reference == nullptr ? "NULL"
                                                  : "what is no object";
  report(std::string(function) + " was given " + what);
  return nullptr;
}

Object *checked(const void *reference, const char *type, const char *function) {
  Object *const object = usable(reference, function);
  if (object == nullptr || object->type == type) return object;
  report(std::string(function) + " was given " + object->description() + ", which is no " + type);
  return nullptr;
}

}  // namespace fake

using namespace fake;

CFTypeRef CFRetain(CFTypeRef reference) {
  if (Object *object = usable(reference, "CFRetain")) retain(*object);
  return reference;
}

void CFRelease(CFTypeRef reference) {
  if (Object *object = usable(reference, "CFRelease")) release(*object);
}

CFTypeID CFGetTypeID(CFTypeRef reference) {
  const Object *const object = usable(reference, "CFGetTypeID");
  return object == nullptr ? 0 : reinterpret_cast<CFTypeID>(object->type);
}
