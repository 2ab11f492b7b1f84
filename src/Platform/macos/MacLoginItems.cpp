#include "Platform/macos/MacLoginItems.h"

#include <CoreServices/CoreServices.h>

#include "Platform/macos/Values.h"

namespace {

Owned<LSSharedFileListRef> loginItems() {
  return Owned<LSSharedFileListRef>(
      LSSharedFileListCreate(kCFAllocatorDefault, kLSSharedFileListSessionLoginItems, nullptr));
}

Owned<CFURLRef> ownUrl() {
  return Owned<CFURLRef>(CFBundleCopyBundleURL(CFBundleGetMainBundle()));
}

/// The present items; the array owns them.
Owned<CFArrayRef> itemsOf(const Owned<LSSharedFileListRef> &list) {
  UInt32 seed = 0;
  return list ? Owned<CFArrayRef>(LSSharedFileListCopySnapshot(list.get(), &seed))
              : Owned<CFArrayRef>();
}

LSSharedFileListItemRef itemAt(const Owned<CFArrayRef> &items, CFIndex index) {
  return static_cast<LSSharedFileListItemRef>(
      const_cast<void *>(CFArrayGetValueAtIndex(items.get(), index)));
}

std::optional<QString> locationOf(LSSharedFileListItemRef item) {
  // No prompt and no mount, because an item may be on a server.
  constexpr auto kQuietly = kLSSharedFileListNoUserInteraction | kLSSharedFileListDoNotMountVolumes;
  CFURLRef url = nullptr;
  const OSStatus status = LSSharedFileListItemResolve(item, kQuietly, &url, nullptr);
  const Owned<CFURLRef> location(url);
  return status == 0 ? pathOf(location.get()) : std::nullopt;
}

}  // namespace

QString MacLoginItems::ownLocation() const {
  return pathOf(ownUrl().get()).value_or(QString());
}

std::optional<QVector<LoginItems::Item>> MacLoginItems::snapshot() const {
  const Owned<CFArrayRef> items = itemsOf(loginItems());
  if (!items) return std::nullopt;
  QVector<Item> result;
  for (CFIndex index = 0; index < CFArrayGetCount(items.get()); ++index) {
    const auto location = locationOf(itemAt(items, index));
    result.append({location.value_or(QString()), location});
  }
  return result;
}

void MacLoginItems::insertOwnItem() {
  const Owned<LSSharedFileListRef> list = loginItems();
  const Owned<CFURLRef> url = ownUrl();
  if (!list || !url) return;
  const Owned<LSSharedFileListItemRef> item(LSSharedFileListInsertItemURL(
      list.get(), kLSSharedFileListItemLast, nullptr, nullptr, url.get(), nullptr, nullptr));
}

void MacLoginItems::remove(const Item &item) {
  const Owned<LSSharedFileListRef> list = loginItems();
  const Owned<CFArrayRef> items = itemsOf(list);
  if (!items || !item.location) return;
  for (CFIndex index = 0; index < CFArrayGetCount(items.get()); ++index) {
    if (locationOf(itemAt(items, index)) != item.location) continue;
    LSSharedFileListItemRemove(list.get(), itemAt(items, index));
    return;
  }
}
