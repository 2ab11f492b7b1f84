// The list of login items. One of it goes by its location, which is empty if it does not resolve.

#include <CoreServices/CoreServices.h>

#include <algorithm>

#include "macos/fake/World.h"

using namespace fake;

constexpr OSStatus kFileNotFound = -43;
constexpr char kList[] = "LSSharedFileList";
constexpr char kItem[] = "LSSharedFileListItem";

LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef, CFStringRef type, CFTypeRef) {
  expect(type == kLSSharedFileListSessionLoginItems);
  return Machine::current().hasLoginItemList ? as<LSSharedFileListRef>(make(kList)) : nullptr;
}

CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef list, UInt32 *) {
  checked(list, kList);
  Object *const snapshot = make("CFArray");
  for (const auto &location : Machine::current().loginItems) {
    snapshot->holds.push_back(make(kItem, location.value_or("")));
  }
  return as<CFArrayRef>(snapshot);
}

OSStatus LSSharedFileListItemResolve(LSSharedFileListItemRef item, LSSharedFileListResolutionFlags,
                                     CFURLRef *url, struct FSRef *) {
  const auto location = valueOf<std::string>(item, kItem);
  if (location.empty()) return kFileNotFound;
  *url = as<CFURLRef>(objectOf(Path{location}));
  return 0;
}

LSSharedFileListItemRef LSSharedFileListInsertItemURL(LSSharedFileListRef list,
                                                      LSSharedFileListItemRef after, CFStringRef,
                                                      IconRef, CFURLRef url, CFDictionaryRef,
                                                      CFArrayRef) {
  checked(list, kList);
  expect(after == kLSSharedFileListItemLast);
  if (!Machine::current().takesLoginItems) return nullptr;
  const std::string location = pathOf(url);
  Machine::current().loginItems.push_back(location);
  return as<LSSharedFileListItemRef>(make(kItem, location));
}

OSStatus LSSharedFileListItemRemove(LSSharedFileListRef list, LSSharedFileListItemRef item) {
  checked(list, kList);
  auto &items = Machine::current().loginItems;
  const auto entry = std::find(items.begin(), items.end(), valueOf<std::string>(item, kItem));
  if (entry == items.end()) return kFileNotFound;
  items.erase(entry);
  return 0;
}
