#pragma once

// The part of it that tells one FAT from another.

#include <cstdint>

struct statfs {
  std::uint32_t f_fssubtype;
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

// Not this system's own function of that name, which knows nothing of this record.
extern "C" int statfs(const char *path, struct statfs *result) __asm__("keldra_fake_statfs");

#pragma GCC diagnostic pop
