#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

/// While it lives, this process may do what anybody may. Its saved user stays root, the way back.
class AsAnybody {
 public:
  AsAnybody() {
    EXPECT_TRUE(getuid() != 0 || (setreuid(kNobody, 0) == 0 && seteuid(kNobody) == 0));
  }
  ~AsAnybody() { EXPECT_TRUE(getuid() != kNobody || (seteuid(0) == 0 && setreuid(0, 0) == 0)); }
  AsAnybody(const AsAnybody &) = delete;
  AsAnybody &operator=(const AsAnybody &) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
};
