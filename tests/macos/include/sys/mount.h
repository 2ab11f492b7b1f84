#pragma once

// The part that distinguishes the FAT variants.

#include <cstdint>

struct statfs {
  std::uint32_t f_fssubtype;
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

// Under another linker name, because this system's own statfs has another record.
extern "C" int statfs(const char *path, struct statfs *result) __asm__("keldra_fake_statfs");

#pragma GCC diagnostic pop
