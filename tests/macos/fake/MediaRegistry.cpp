#include <IOKit/IOBSD.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/storage/IOMedia.h>

#include "macos/fake/World.h"

using namespace fake;

// The kernel's objects are numbers: 1 is the iterator, the others are the disks after it.

CFMutableDictionaryRef IOServiceMatching(const char *name) {
  return as<CFMutableDictionaryRef>(objectOf(QVariantMap{{name, true}}));
}

kern_return_t IOServiceGetMatchingServices(mach_port_t, CFDictionaryRef matching,
                                           io_iterator_t *existing) {
  CFRelease(matching);  // also when the call fails
  world().nextMedium = 0;
  ++world().kernelReferences;
  *existing = 1;
  return KERN_SUCCESS;
}

io_object_t IOIteratorNext(io_iterator_t) {
  const auto count = static_cast<io_object_t>(world().disks.size());
  if (world().nextMedium == count) return 0;
  ++world().kernelReferences;
  return ++world().nextMedium + 1;
}

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t number,
                                                CFMutableDictionaryRef *properties, CFAllocatorRef,
                                                IOOptionBits) {
  const QString name = world().disks.keys().at(number - 2);
  if (name.startsWith('/')) return -1;  // a volume without media
  *properties = as<CFMutableDictionaryRef>(objectOf(QVariantMap{{kIOBSDNameKey, name}}));
  return KERN_SUCCESS;
}

kern_return_t IOObjectRelease(io_object_t) {
  --world().kernelReferences;
  return KERN_SUCCESS;
}
