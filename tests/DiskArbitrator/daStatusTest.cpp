#include "DiskArbitrator/daStatus.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

TEST(daStatus, PutsTheServicesCodesIntoFixedWords) {
  EXPECT_STREQ(daStatus(kDAReturnError), "error");
  EXPECT_STREQ(daStatus(kDAReturnNoResources), "no Resources");
  EXPECT_STREQ(daStatus(kDAReturnNotPrivileged), "not privileged");
  EXPECT_STREQ(daStatus(kDAReturnUnsupported), "unsupported");
  for (const DissenterStatus outside :
       {0xF8DA0000U, 0xF8DA000DU, kDAReturnSuccess, 0xFFFFFFFFU, 0x1C00DU}) {
    EXPECT_STREQ(daStatus(outside), "unknown error") << outside;
  }
}

TEST(daStatus, LeavesUnixErrorsToTheLibrary) {
  EXPECT_STREQ(daStatus(unixErrorStatus(EACCES)), std::strerror(EACCES));
  EXPECT_STREQ(daStatus(unixErrorStatus(ECANCELED)), std::strerror(ECANCELED));
  EXPECT_STREQ(daStatus(0xC000), std::strerror(0));
}
