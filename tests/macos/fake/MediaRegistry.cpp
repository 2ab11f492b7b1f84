#include <IOKit/IOBSD.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/storage/IOMedia.h>

#include "macos/fake/Values.h"
#include "macos/fake/World.h"

using namespace fake;

namespace {

constexpr kern_return_t kFailure = 5;

struct Medium : Object {
  static constexpr char kType[] = "io_registry_entry";
  explicit Medium(DiskEntry shown) : Object(kType), entry(std::move(shown)) {}
  std::string text() const override { return entry.name; }
  DiskEntry entry;
};

struct Iterator : Object {
  static constexpr char kType[] = "io_iterator";
  Iterator() : Object(kType) {}
  std::deque<DiskEntry> rest;
};

io_object_t numbered(Object *object) {
  const auto number = static_cast<unsigned>(world().kernelObjects.size() + 1);
  world().kernelObjects[number] = object;
  return number;
}

/// What no number stands for is reported as NULL.
Object *objectAt(io_object_t number) {
  const auto place = world().kernelObjects.find(number);
  return place == world().kernelObjects.end() ? nullptr : place->second;
}

}  // namespace

CFMutableDictionaryRef IOServiceMatching(const char *name) {
  return as<CFMutableDictionaryRef>(
      objectOf(Dictionary{{"IOProviderClass", std::string(name)}}, __func__));
}

kern_return_t IOServiceGetMatchingServices(mach_port_t, CFDictionaryRef matching,
                                           io_iterator_t *existing) {
  auto *const dictionary = checked<DictionaryObject>(matching);
  if (dictionary == nullptr) return kFailure;
  const bool isForMedia = dictionary->values.contains("IOProviderClass") &&
                          dictionary->values["IOProviderClass"]->text() == kIOMediaClass;
  release(*dictionary);  // also when the call fails
  if (!Machine::current().hasMediaRegistry) return kFailure;
  auto *const iterator = make<Iterator>(__func__);
  for (const DiskEntry &each : world().disks) {
    if (isForMedia && each.listing != Listing::Absent) iterator->rest.push_back(each);
  }
  *existing = numbered(iterator);
  return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t number) {
  auto *const iterator = checked<Iterator>(objectAt(number));
  if (iterator == nullptr || iterator->rest.empty()) return 0;
  auto *const medium = make<Medium>(__func__, iterator->rest.front());
  iterator->rest.pop_front();
  return numbered(medium);
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t number,
                                                CFMutableDictionaryRef *properties, CFAllocatorRef,
                                                IOOptionBits) {
  const auto *const medium = checked<Medium>(objectAt(number));
  if (medium == nullptr || medium->entry.listing == Listing::Unreadable) return kFailure;
  Dictionary values = {{"Leaf", true}};
  if (medium->entry.listing == Listing::Named) values[kIOBSDNameKey] = medium->entry.name;
  *properties = as<CFMutableDictionaryRef>(objectOf(values, __func__));
  return KERN_SUCCESS;
}

kern_return_t IOObjectRelease(io_object_t number) {
  Object *const object = objectAt(number);
  if (object == nullptr) {
    report("IOObjectRelease was given " + std::to_string(number) + ", which is no object");
    return kFailure;
  }
  release(*object);
  return KERN_SUCCESS;
}
