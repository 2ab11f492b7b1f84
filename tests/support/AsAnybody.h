#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

/// While it lives, this process may do what anybody may.
class AsAnybody {
 public:
  AsAnybody() { EXPECT_TRUE(getuid() != 0 || setresuid(kNobody, kNobody, 0) == 0); }
  ~AsAnybody() { EXPECT_TRUE(getuid() != kNobody || setresuid(0, 0, 0) == 0); }
  AsAnybody(const AsAnybody &) = delete;
  AsAnybody &operator=(const AsAnybody &) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
};
