#include <CoreServices/CoreServices.h>

#include <algorithm>

#include "macos/fake/Values.h"
#include "macos/fake/World.h"

using namespace fake;

namespace {

constexpr OSStatus kNoError = 0;
constexpr OSStatus kFileNotFound = -43;

struct List : Object {
  static constexpr char kType[] = "LSSharedFileList";
  List() : Object(kType) {}
};

struct Item : Object {
  static constexpr char kType[] = "LSSharedFileListItem";
  explicit Item(int which) : Object(kType), number(which) {}
  int number;
};

auto entryAt(int number) {
  auto &items = Machine::current().loginItems;
  return std::find_if(items.begin(), items.end(),
                      [number](const LoginItem &each) { return each.number == number; });
}

}  // namespace

LSSharedFileListRef LSSharedFileListCreate(CFAllocatorRef, CFStringRef type, CFTypeRef) {
  if (type != kLSSharedFileListSessionLoginItems) report("LSSharedFileListCreate: another list");
  const bool canBeMade = Machine::current().hasLoginItemList;
  return canBeMade ? as<LSSharedFileListRef>(make<List>(__func__)) : nullptr;
}

CFArrayRef LSSharedFileListCopySnapshot(LSSharedFileListRef list, UInt32 *seed) {
  if (checked<List>(list) == nullptr) return nullptr;
  if (seed != nullptr) *seed = 1;
  auto *const snapshot = make<ArrayObject>(__func__);
  for (const LoginItem &each : Machine::current().loginItems) {
    snapshot->holds.push_back(make<Item>(__func__, each.number));
  }
  return as<CFArrayRef>(snapshot);
}

OSStatus LSSharedFileListItemResolve(LSSharedFileListItemRef item, LSSharedFileListResolutionFlags,
                                     CFURLRef *url, struct FSRef *) {
  const auto *const object = checked<Item>(item);
  if (object == nullptr) return kFileNotFound;
  const auto entry = entryAt(object->number);
  if (entry == Machine::current().loginItems.end() || !entry->location.has_value()) {
    return kFileNotFound;
  }
  *url = as<CFURLRef>(make<Url>(__func__, *entry->location, true));
  return kNoError;
}

LSSharedFileListItemRef LSSharedFileListInsertItemURL(LSSharedFileListRef list,
                                                      LSSharedFileListItemRef after, CFStringRef,
                                                      IconRef, CFURLRef url, CFDictionaryRef,
                                                      CFArrayRef) {
  const auto *const location = checked<Url>(url);
  if (after != kLSSharedFileListItemLast) report("LSSharedFileListInsertItemURL: not at the end");
  if (checked<List>(list) == nullptr || location == nullptr) return nullptr;
  if (!Machine::current().takesLoginItems) return nullptr;
  const LoginItem added{location->path()};
  Machine::current().loginItems.push_back(added);
  return as<LSSharedFileListItemRef>(make<Item>(__func__, added.number));
}

OSStatus LSSharedFileListItemRemove(LSSharedFileListRef list, LSSharedFileListItemRef item) {
  const auto *const object = checked<Item>(item);
  if (checked<List>(list) == nullptr || object == nullptr) return kFileNotFound;
  const auto entry = entryAt(object->number);
  if (entry == Machine::current().loginItems.end()) return kFileNotFound;
  Machine::current().loginItems.erase(entry);
  return kNoError;
}
