#pragma once

// The platform's interface as C++ declarations, with the types and linkage of a Mac.

#include <cstdint>

struct dispatch_queue_s {};
struct dispatch_queue_global_s : dispatch_queue_s {};

#define TYPE(name, ...) using name = __VA_ARGS__;
#define ENUM(name, type) enum name : type {};
#define INT(type, name, value) inline constexpr type name = static_cast<type>(value);
#define REF(type, name) extern type name;
#define STR(name, text) inline constexpr char name[] = text;
#define FN(result, name, parameters) result name parameters;

extern "C" {
#include "Platform/macos/Interface.def"
}

#undef TYPE
#undef ENUM
#undef INT
#undef REF
#undef STR
#undef FN
