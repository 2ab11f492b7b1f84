#include <gtest/gtest.h>

#include <QLoggingCategory>

#include "load/RandomWalk.h"
#include "load/TableDifference.h"

TEST(RandomWalk, LeavesTheTableAsTheModelHasItAfterEveryStep) {
  // Each refusal is logged, and each opening of the popover laments that it cannot be raised.
  QLoggingCategory::setFilterRules("default.warning=false");
  const quint64 seed = loadSeed();
  const int steps = loadCount(100'000, 2000);
  RandomWalk walk(seed);
  QStringList latest;
  qint64 rows = 0;
  for (int step = 1; step <= steps; ++step) {
    latest << walk.step();
    if (latest.size() > 10) latest.removeFirst();
    const QVector<ModelRow> expected = walk.model().rows().values();
    const QString difference = differenceOf(walk.program(), expected);
    const QStringList wrong = walk.surprises + QStringList(difference);
    ASSERT_TRUE(wrong.join("").isEmpty())
        << "KELDRA_LOAD_SEED=" << seed << ", step " << step << ": "
        << wrong.join("; ").toStdString() << "\nafter\n  " << latest.join("\n  ").toStdString();
    rows += expected.size();
  }
  printLine(QStringLiteral("random walk, seed %1: %2 steps, %3 rows compared, no difference\n  %4")
                .arg(seed)
                .arg(steps)
                .arg(rows)
                .arg(walk.counts()));
}
