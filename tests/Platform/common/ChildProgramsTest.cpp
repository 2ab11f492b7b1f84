#include "Platform/common/ChildPrograms.h"

#include <gtest/gtest.h>

namespace {

ProgramRun shell(const QString &script) {
  return ChildPrograms().run("/bin/sh", {"-c", script, "a b"});
}

}  // namespace

TEST(ChildPrograms, ReturnTheirExitStatusAndTheStartOfTheirOutput) {
  EXPECT_EQ(shell("echo \"$0\"").output, "a b\n");
  EXPECT_NE(shell("kill -KILL $$").exitStatus, 0);
  EXPECT_EQ(shell("cat").exitStatus, 0) << "standard input should be empty";

  const ProgramRun flood = shell("head -c 5000000 /dev/zero; exit 7");
  EXPECT_EQ(flood.output.size(), 65536);
  EXPECT_EQ(flood.exitStatus, 7) << "the program was cut off";
}

TEST(ChildPrograms, ThatCannotBeStartedReturnAProblem) {
  const ProgramRun run = ChildPrograms().run("/no/such/program", {});
  EXPECT_NE(run.problem.value_or(""), "");
  EXPECT_NE(run.exitStatus, 0);
}
