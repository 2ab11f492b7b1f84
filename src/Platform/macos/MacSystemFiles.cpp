#include "Platform/macos/MacSystemFiles.h"

#include <IOKit/kext/KextManager.h>

#include "Platform/macos/Values.h"

std::optional<QString> MacSystemFiles::bundleResource(const QString &bundle, const QString &name,
                                                      const QString &type) const {
  const Owned<CFURLRef> url = makeFolderUrl(_root + bundle);
  const Owned<CFBundleRef> opened(url ? CFBundleCreate(kCFAllocatorDefault, url.get()) : nullptr);
  if (!opened) return std::nullopt;
  // For an empty name the system returns any file of the type.
  if (name.isEmpty()) return QString();
  const Owned<CFURLRef> resource(
      CFBundleCopyResourceURL(opened.get(), makeText(name).get(), makeText(type).get(), nullptr));
  return pathOf(resource.get()).value_or(QString()).mid(_root.size());
}

std::optional<QString> MacSystemFiles::driverBundle(const QString &identifier) const {
  if (identifier.isEmpty()) return std::nullopt;
  const Owned<CFURLRef> url(
      KextManagerCreateURLForBundleIdentifier(kCFAllocatorDefault, makeText(identifier).get()));
  return pathOf(url.get());
}
