#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

/// While this object exists, the process has an ordinary user's rights. Its saved user stays root,
/// so that it can switch back.
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
