// The platform's constants, made from the list in Interface.def. Only the service's own keys have
// their real texts; no program should depend on the others.

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
  if constexpr (!std::is_integral_v<Reference>) return as<Reference>(constant(name));
  return {};
}

}  // namespace

void fake::setWatchKeys(bool areThere) {
  const auto key = [=](CFStringRef text) -> CFArrayRef {
    if (!areThere) return nullptr;
    Object *const array = makeConstant("CFArray");
    array->holds = {checked(text)};
    return as<CFArrayRef>(array);
  };
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
