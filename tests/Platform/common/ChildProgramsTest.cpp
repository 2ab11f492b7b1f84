#include "Platform/common/ChildPrograms.h"

#include <gtest/gtest.h>

namespace {

ProgramRun shell(const QString &script) {
  return ChildPrograms().run("/bin/sh", {"-c", script, "a b"});
}

}  // namespace

TEST(ChildPrograms, AreAwaitedAndGiveTheirStatusAndTheBeginningOfTheirOutput) {
  EXPECT_EQ(shell("echo \"$0\"").output, "a b\n");
  EXPECT_NE(shell("kill -KILL $$").exitStatus, 0);
  EXPECT_EQ(shell("cat").exitStatus, 0) << "there is nothing to read, and no waiting for it";

  const ProgramRun flood = shell("head -c 5000000 /dev/zero; exit 7");
  EXPECT_EQ(flood.output.size(), 65536);
  EXPECT_EQ(flood.exitStatus, 7) << "it was not cut off";
  EXPECT_FALSE(flood.problem.has_value());
}

TEST(ChildPrograms, ThatCannotBeStartedAreAProblem) {
  for (const QString &path : {QString("/no/such/program"), QString("/tmp"), QString("")}) {
    const ProgramRun run = ChildPrograms().run(path, {});
    EXPECT_NE(run.problem.value_or(""), "") << path.toStdString();
    EXPECT_NE(run.exitStatus, 0);
  }
}
