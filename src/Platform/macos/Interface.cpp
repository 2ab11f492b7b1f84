// Checks that the platform's headers match the declarations that this backend assumes: a difference fails the
// build with its name, instead of failing at run time.

#include <CoreFoundation/CoreFoundation.h>
#include <CoreServices/CoreServices.h>
#include <DiskArbitration/DiskArbitration.h>
#include <IOKit/IOBSD.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/kext/KextManager.h>
#include <IOKit/storage/IOMedia.h>
#include <dispatch/dispatch.h>
#include <libproc.h>
#include <mach-o/dyld.h>
#include <objc/message.h>
#include <objc/runtime.h>

#include <string_view>
#include <type_traits>

// Constants match with or without const, functions with or without noexcept.
#define TYPE(name, ...) static_assert(std::is_same_v<name, __VA_ARGS__>);
#define ENUM(name, type) static_assert(std::is_same_v<std::underlying_type_t<name>, type>);
#define INT(type, name, value) static_assert(static_cast<int>(name) == static_cast<int>(value));
#define REF(type, name) static_assert(std::is_same_v<std::remove_const_t<decltype(name)>, type>);
#define STR(name, text) static_assert(std::string_view(name) == (text));
#define FN(result, name, parameters) \
  static_assert(std::is_convertible_v<decltype(&name), result(*) parameters>);
#include "Platform/macos/Interface.def"
