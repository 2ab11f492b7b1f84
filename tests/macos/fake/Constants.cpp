// The platform's constants, each from its line in the lists: a text that no program should depend
// on unless it is the service's own key.

#include <CoreServices/CoreServices.h>
#include <IOKit/IOKitLib.h>

#include "macos/fake/World.h"

namespace {

using namespace fake;

/// "DAMediaName" of "MediaNameKey".
Object *keyOf(const std::string &name) {
  return makeConstant("CFString", "DA" + name.substr(0, name.size() - std::string("Key").size()));
}

Object *constant(const std::string &name) {
  const std::string keys = "kDADiskDescription";
  const std::string watches = keys + "Watch";
  if (name.starts_with("kCFBoolean")) return makeConstant("CFBoolean", name == "kCFBooleanTrue");
  if (name.starts_with(watches)) {
    Object *const array = makeConstant("CFArray");
    array->holds.push_back(keyOf(name.substr(watches.size()) + "Key"));
    return array;
  }
  return name.starts_with(keys) ? keyOf(name.substr(keys.size())) : makeConstant("CFString", name);
}

template <class Reference>
Reference constantOf(const char *name) {
  constexpr bool isNull =
      std::is_integral_v<Reference> || std::is_same_v<Reference, CFAllocatorRef>;
  if constexpr (!isNull) return as<Reference>(constant(name));
  return {};
}

}  // namespace

#define TYPE(...)
#define INT(...)
#define STR(...)
#define FN(...)
#define REF(type, name) type name = constantOf<std::remove_const_t<type>>(#name);
#include "macos/api/api-unverified.def"
#include "macos/api/api-verified.def"
