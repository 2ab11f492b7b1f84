#include "DiskArbitrator/daStatus.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

TEST(daStatus, HasWordsForEveryNumber) {
  EXPECT_STREQ(daStatus(kDAReturnError), "error");
  EXPECT_STREQ(daStatus(kDAReturnUnsupported), "unsupported");
  for (const DissenterStatus outside : {0xF8DA0000U, 0xF8DA000DU, kDAReturnSuccess, 0x1C00DU}) {
    EXPECT_STREQ(daStatus(outside), "unknown error") << outside;
  }
  EXPECT_STREQ(daStatus(unixErrorStatus(ECANCELED)), std::strerror(ECANCELED));
}
