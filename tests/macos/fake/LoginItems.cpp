// The list of login items. One of it goes by its location, which is empty if it does not resolve.

#include <CoreServices/CoreServices.h>

#include "macos/fake/World.h"

using namespace fake;

constexpr OSStatus kFileNotFound = -43;
constexpr char kList[] = "LSSharedFileList";
constexpr char kItem[] = "LSSharedFileListItem";

LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef, CFStringRef type, CFTypeRef) {
  expect(type == kLSSharedFileListSessionLoginItems);
  return as<LSSharedFileListRef>(new Object(kList));
}

CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef list, UInt32 *) {
  checked(list, kList);
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

LSSharedFileListItemRef LSSharedFileListInsertItemURL(LSSharedFileListRef list,
                                                      LSSharedFileListItemRef, CFStringRef, IconRef,
                                                      CFURLRef url, CFDictionaryRef, CFArrayRef) {
  checked(list, kList);
  Machine::current().loginItems.append(pathOf(url));
  return as<LSSharedFileListItemRef>(new Object(kItem, pathOf(url)));
}

OSStatus LSSharedFileListItemRemove(LSSharedFileListRef list, LSSharedFileListItemRef item) {
  checked(list, kList);
  const QString location = valueOf(item, kItem).toString();
  return Machine::current().loginItems.removeOne(location) ? 0 : kFileNotFound;
}
