#include <IOKit/IOBSD.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/storage/IOMedia.h>

#include "macos/fake/World.h"

using namespace fake;

namespace {

constexpr kern_return_t kFailure = 5;

const void *referenceTo(io_object_t number) {
  return reinterpret_cast<const void *>(std::uintptr_t{number});
}

/// From now on the object goes by a number, as those of the kernel do.
io_object_t numbered(Object *object) {
  static io_object_t last = 0;
  auto node = objects().extract(object);
  node.key() = referenceTo(++last);
  objects().insert(std::move(node));
  return last;
}

}  // namespace

CFMutableDictionaryRef IOServiceMatching(const char *name) {
  return as<CFMutableDictionaryRef>(objectOf(Dictionary{{name, true}}));
}

kern_return_t IOServiceGetMatchingServices(mach_port_t, CFDictionaryRef matching,
                                           io_iterator_t *existing) {
  expect(valueOf<Dictionary>(matching, "CFDictionary").contains(kIOMediaClass));
  CFRelease(matching);  // also when the call fails
  if (!Machine::current().hasMediaRegistry) return kFailure;
  Object *const iterator = make("io_iterator");
  for (const DiskEntry &each : world().disks) {
    if (each.listing == Listing::Absent) continue;
    iterator->holds.push_back(make("io_registry_entry", each.name));
  }
  *existing = numbered(iterator);
  return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t number) {
  Object *const iterator = checked(referenceTo(number), "io_iterator");
  if (iterator == nullptr || iterator->holds.empty()) return 0;
  Object *const medium = iterator->holds.front();
  iterator->holds.erase(iterator->holds.begin());
  return numbered(medium);
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t number,
                                                CFMutableDictionaryRef *properties, CFAllocatorRef,
                                                IOOptionBits) {
  const DiskEntry *const entry =
      entryOf(valueOf<std::string>(referenceTo(number), "io_registry_entry"));
  if (entry == nullptr || entry->listing == Listing::Unreadable) return kFailure;
  Dictionary values;
  if (entry->listing == Listing::Named) values[kIOBSDNameKey] = entry->name;
  *properties = as<CFMutableDictionaryRef>(objectOf(values));
  return KERN_SUCCESS;
}

kern_return_t IOObjectRelease(io_object_t number) {
  release(checked(referenceTo(number)));
  return KERN_SUCCESS;
}
