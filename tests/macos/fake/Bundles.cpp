#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/kext/KextManager.h>

#include <filesystem>

#include "macos/fake/Values.h"
#include "macos/fake/World.h"

using namespace fake;

namespace {

struct Bundle : Object {
  static constexpr char kType[] = "CFBundle";
  explicit Bundle(std::string folder = Machine::current().mainBundle)
      : Object(kType), path(std::move(folder)) {}
  std::string text() const override { return path; }
  std::string path;
};

}  // namespace

CFURLRef KextManagerCreateURLForBundleIdentifier(CFAllocatorRef, CFStringRef identifier) {
  const auto &bundles = Machine::current().driverBundles;
  const auto place = bundles.find(textOf(identifier).value_or(""));
  return place == bundles.end() ? nullptr : as<CFURLRef>(make<Url>(__func__, place->second, true));
}

CFBundleRef CFBundleGetMainBundle() {
  return as<CFBundleRef>(lasting<Bundle>());
}

CFURLRef CFBundleCopyBundleURL(CFBundleRef bundle) {
  const auto *const object = checked<Bundle>(bundle);
  return object == nullptr ? nullptr : as<CFURLRef>(make<Url>(__func__, object->path, true));
}

CFBundleRef CFBundleCreate(CFAllocatorRef, CFURLRef url) {
  const auto *const object = checked<Url>(url);
  if (object == nullptr || !std::filesystem::is_directory(object->path())) return nullptr;
  return as<CFBundleRef>(make<Bundle>(__func__, object->path()));
}

CFURLRef CFBundleCopyResourceURL(CFBundleRef bundle, CFStringRef name, CFStringRef type,
                                 CFStringRef folder) {
  const auto *const object = checked<Bundle>(bundle);
  const auto resource = textOf(name);
  if (object == nullptr || !resource.has_value()) return nullptr;
  std::string path = "Contents/Resources/";
  if (folder != nullptr) path.append(textOf(folder).value_or("")).append("/");
  path += *resource;
  if (type != nullptr) path.append(".").append(textOf(type).value_or(""));
  // Relative to the bundle: only what resolves it gets a whole path.
  if (!std::filesystem::exists(object->path + "/" + path)) return nullptr;
  return as<CFURLRef>(make<Url>(__func__, path, false, object->path + "/"));
}
