#include <cstdio>
#include <cstdlib>

#include "macos/fake/World.h"

namespace fake {

namespace {

Machine *currentMachine = nullptr;

/// One line for each object that has more references than other living objects hold.
std::string unreleasedObjects() {
  std::unordered_map<const Object *, long> held;
  for (const auto &[reference, object] : world().objects) {
    if (object->isGone()) continue;
    for (const Object *each : object->holds) ++held[each];
  }
  std::string lines;
  for (const auto &[reference, object] : world().objects) {
    const long leaked = object->references - held[object.get()];
    if (leaked > 0) {
      lines += "\n  " + object->description() + ", " + std::to_string(leaked) + " too many";
    }
  }
  return lines;
}

}  // namespace

Machine &Machine::current() {
  if (currentMachine == nullptr) {
    std::fputs("The platform was called while there was no fake::Machine.\n", stderr);
    std::abort();
  }
  return *currentMachine;
}

World &world() {
  return Machine::current().world();
}

int LoginItem::nextNumber() {
  static int last = 0;
  return ++last;
}

Machine::Machine() : _world(std::make_unique<World>()) {
  if (currentMachine != nullptr) report("There is a fake::Machine already.");
  currentMachine = this;
}

Machine::~Machine() {
  if (!_world->runs.empty()) report("A run of the run loop is still under way.");
  std::string leaks;
  for (const Observer &each : _world->observers) {
    leaks += "\n  an observer of \"" + each.name + "\", not removed";
  }
  for (Object *each : _world->lasting) release(*each);
  leaks += unreleasedObjects();
  if (!leaks.empty()) report("Left behind:" + leaks);
  currentMachine = nullptr;
}

}  // namespace fake
