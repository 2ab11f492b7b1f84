#include "fuzz/Fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  fuzz({reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)});
  return 0;
}
