// The platform's constants, each from its line in the list: a text that no program should depend
// on unless it is the service's own key.

#include <CoreServices/CoreServices.h>
#include <IOKit/IOKitLib.h>

#include <QRegularExpression>

#include "macos/fake/World.h"

namespace {

using namespace fake;

Object *constant(QString name) {
  if (name.startsWith("kCFBoolean")) return makeConstant("CFBoolean", name == "kCFBooleanTrue");
  // "DAMediaName" for "kDADiskDescriptionMediaNameKey"
  static const QRegularExpression kKey("^kDADiskDescription(.*)Key$");
  return makeConstant("CFString", name.replace(kKey, "DA\\1"));
}

template <class Reference>
Reference constantOf(const char *name) {
  constexpr bool isNull = std::is_integral_v<Reference> ||
                          std::is_same_v<Reference, CFAllocatorRef> ||
                          std::is_same_v<Reference, CFArrayRef>;
  if constexpr (!isNull) return as<Reference>(constant(name));
  return {};
}

CFArrayRef arrayOf(CFStringRef text) {
  Object *const array = makeConstant("CFArray");
  array->holds.push_back(checked(text));
  return as<CFArrayRef>(array);
}

}  // namespace

void fake::setWatchKeys(bool areThere) {
  const auto key = [=](CFStringRef text) { return areThere ? arrayOf(text) : nullptr; };
  kDADiskDescriptionWatchVolumePath = key(kDADiskDescriptionVolumePathKey);
  kDADiskDescriptionWatchVolumeName = key(kDADiskDescriptionVolumeNameKey);
}

#define TYPE(...)
#define ENUM(...)
#define INT(...)
#define STR(...)
#define FN(...)
#define REF(type, name) type name = constantOf<type>(#name);
#include "Platform/macos/Interface.def"
