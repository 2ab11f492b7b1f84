// The list of login items. One of it goes by its location, which is empty if it does not resolve.

#include <CoreServices/CoreServices.h>

#include "macos/fake/World.h"

using namespace fake;

constexpr OSStatus kFileNotFound = -43;
constexpr char kItem[] = "LSSharedFileListItem";

LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef, CFStringRef, CFTypeRef) {
  return as<LSSharedFileListRef>(new Object("LSSharedFileList"));
}

CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef, UInt32 *) {
  auto *const snapshot = new Object("CFArray");
  for (const QString &location : Machine::current().loginItems) {
    snapshot->holds.push_back(new Object(kItem, location));
  }
  return as<CFArrayRef>(snapshot);
}

OSStatus LSSharedFileListItemResolve(LSSharedFileListItemRef item,
                                     LSSharedFileListResolutionFlags flags, CFURLRef *url,
                                     struct FSRef *) {
  expect(flags == (kLSSharedFileListNoUserInteraction | kLSSharedFileListDoNotMountVolumes));
  const QString location = valueOf(item, kItem).toString();
  if (location.isEmpty()) return kFileNotFound;
  *url = as<CFURLRef>(objectOf(QUrl::fromLocalFile(location)));
  return 0;
}

LSSharedFileListItemRef LSSharedFileListInsertItemURL(LSSharedFileListRef, LSSharedFileListItemRef,
                                                      CFStringRef, IconRef, CFURLRef url,
                                                      CFDictionaryRef, CFArrayRef) {
  Machine::current().loginItems.append(pathOf(url));
  return as<LSSharedFileListItemRef>(new Object(kItem, pathOf(url)));
}

OSStatus LSSharedFileListItemRemove(LSSharedFileListRef, LSSharedFileListItemRef item) {
  const QString location = valueOf(item, kItem).toString();
  return Machine::current().loginItems.removeOne(location) ? 0 : kFileNotFound;
}
