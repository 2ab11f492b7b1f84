#include "Platform/macos/MacMediaRegistry.h"

#include <IOKit/IOBSD.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/storage/IOMedia.h>

#include "Platform/macos/Values.h"

namespace {

Owned<io_iterator_t> allMedia() {
  io_iterator_t media{};
  // The call consumes the matching dictionary, even on failure.
  const kern_return_t result =
      IOServiceGetMatchingServices(kIOMasterPortDefault, IOServiceMatching(kIOMediaClass), &media);
  return result == KERN_SUCCESS ? Owned<io_iterator_t>(media) : Owned<io_iterator_t>();
}

std::optional<QString> bsdNameOf(const Owned<io_object_t> &medium) {
  CFMutableDictionaryRef table = nullptr;  // remains null for a removed medium
  IORegistryEntryCreateCFProperties(medium.get(), &table, kCFAllocatorDefault, 0);
  const Owned<CFMutableDictionaryRef> properties(table);
  return textOf(referenceIn(properties.get(), QString::fromUtf8(kIOBSDNameKey)));
}

// "disk1" and "disk1s2" lie on "disk1", but "disk10" does not.
bool liesOn(const QString &bsdName, const QString &wholeDisk) {
  if (!bsdName.startsWith(wholeDisk)) return false;
  return bsdName.size() == wholeDisk.size() || bsdName.at(wholeDisk.size()) == u's';
}

}  // namespace

QStringList MacMediaRegistry::mediaNames() const {
  const Owned<io_iterator_t> media = allMedia();
  QStringList names;
  while (const Owned<io_object_t> medium{IOIteratorNext(media.get())}) {
    if (const auto name = bsdNameOf(medium)) names += *name;
  }
  return names;
}

QStringList MacMediaRegistry::mediaNamesOnDisk(const QString &wholeDisk) const {
  QStringList names = mediaNames();
  names.removeIf([&](const QString &name) { return !liesOn(name, wholeDisk); });
  return names;
}
