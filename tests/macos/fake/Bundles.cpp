// The program's bundle and those of drivers.

#include <IOKit/kext/KextManager.h>

#include <filesystem>

#include "macos/fake/World.h"

using namespace fake;

CFURLRef KextManagerCreateURLForBundleIdentifier(CFAllocatorRef, CFStringRef identifier) {
  const auto &bundles = Machine::current().driverBundles;
  const auto place = bundles.find(textOf(identifier));
  return place == bundles.end() ? nullptr : as<CFURLRef>(objectOf(Path{place->second}));
}

CFBundleRef CFBundleGetMainBundle() {
  static Object *const bundle = makeConstant("CFBundle");
  return as<CFBundleRef>(bundle);
}

CFURLRef CFBundleCopyBundleURL(CFBundleRef bundle) {
  expect(bundle == CFBundleGetMainBundle());
  return as<CFURLRef>(objectOf(Path{Machine::current().mainBundle}));
}

CFBundleRef CFBundleCreate(CFAllocatorRef, CFURLRef url) {
  const std::string path = pathOf(url);
  return std::filesystem::is_directory(path) ? as<CFBundleRef>(make("CFBundle", path)) : nullptr;
}

CFURLRef CFBundleCopyResourceURL(CFBundleRef bundle, CFStringRef name, CFStringRef type,
                                 CFStringRef) {
  const std::string base = valueOf<std::string>(bundle, "CFBundle") + "/";
  const std::string path = "Contents/Resources/" + textOf(name) + "." + textOf(type);
  // Relative to the bundle: only what resolves it gets a whole path.
  return std::filesystem::exists(base + path) ? as<CFURLRef>(objectOf(Path{path, base})) : nullptr;
}
