#pragma once

// The lists of the platform's interface as C++ declarations, with the types and the linkage that
// they have on a Mac.

#include <cstdint>

#define TYPE(name, ...) using name = __VA_ARGS__;
#define INT(name, value) inline constexpr int name = static_cast<int>(value);
#define REF(type, name) extern type name;
#define STR(name, text) inline constexpr char name[] = text;
#define FN(result, name, parameters) result name parameters;

// Apart from each other, because each list uses types of those before it.
extern "C" {
#include "api-other.def"

#include "api-verified.def"

#include "api-unverified.def"
}

#undef TYPE
#undef INT
#undef REF
#undef STR
#undef FN
