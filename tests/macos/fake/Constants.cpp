// The platform's constants, each from its line in the lists: a text that no program should depend
// on unless it is the service's own key.

#include <CoreServices/CoreServices.h>
#include <DiskArbitration/DiskArbitration.h>
#include <IOKit/IOKitLib.h>

#include "macos/fake/Values.h"

using namespace fake;

namespace {

/// "kDADiskDescriptionMediaNameKey" stands for "DAMediaName".
std::string textFor(std::string name) {
  const std::string prefix = "kDADiskDescription";
  if (!name.starts_with(prefix)) return name;
  return "DA" + name.substr(prefix.size(), name.size() - prefix.size() - std::string("Key").size());
}

template <class Reference>
Reference constant(const char *name);

template <>
CFStringRef constant<CFStringRef>(const char *name) {
  return as<CFStringRef>(keepForever(std::make_unique<String>(textFor(name))));
}

template <>
CFBooleanRef constant<CFBooleanRef>(const char *name) {
  return as<CFBooleanRef>(
      keepForever(std::make_unique<Bool>(std::string(name) == "kCFBooleanTrue")));
}

/// "kDADiskDescriptionWatchVolumePath" holds the key for the path.
template <>
CFArrayRef constant<CFArrayRef>(const char *name) {
  auto array = std::make_unique<ArrayObject>();
  const std::string watched =
      std::string(name).substr(std::string("kDADiskDescriptionWatch").size());
  array->holds.push_back(keepForever(std::make_unique<String>("DA" + watched)));
  return as<CFArrayRef>(keepForever(std::move(array)));
}

template <>
LSSharedFileListItemRef constant<LSSharedFileListItemRef>(const char *name) {
  return as<LSSharedFileListItemRef>(keepForever(std::make_unique<String>(name)));
}

template <>
CFAllocatorRef constant<CFAllocatorRef>(const char *) {
  return nullptr;
}

template <>
mach_port_t constant<mach_port_t>(const char *) {
  return 0;
}

}  // namespace

#define TYPE(...)
#define INT(...)
#define STR(...)
#define FN(...)
#define REF(type, name) type name = constant<std::remove_const_t<type>>(#name);
#include "macos/api/api-unverified.def"
#include "macos/api/api-verified.def"
