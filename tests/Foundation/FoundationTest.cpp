#include <gtest/gtest.h>

#include <QCoreApplication>
#include <optional>

#include "Foundation/MainQueue.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Paths.h"
#include "Foundation/Text.h"

TEST(Text, ParsesLeadingNumbersAndLastPathComponents) {
  EXPECT_EQ(leadingInteger("99999999999999999999"), 2147483647);
  EXPECT_EQ(leadingInteger(" -7.5"), -7);
  EXPECT_EQ(lastPathComponent("/Volumes/Data//"), "Data");
  EXPECT_FALSE(areEqualTexts(std::nullopt, std::nullopt)) << "absent texts are never the same";
}

TEST(Paths, KeepBytesThatAreNotUtf8) {
  const QByteArray all[] = {"/plain",        "/caf\xc3\xa9 100%",
                            "/a\xff/b\xc3",  "/\xe2\x82z\xf0\x9f\x98\x80",
                            "/\xed\xb2\x80", ""};
  for (const QByteArray &bytes : all) {
    const QString path = pathFromBytes(bytes);
    EXPECT_EQ(bytesOfPath(path), bytes);
    EXPECT_EQ(pathOfUrl(urlOfPath(path)), path) << bytes.toPercentEncoding().constData();
  }
  EXPECT_EQ(urlOfPath(pathFromBytes("/a b\xff")).toEncoded(), "file:///a%20b%FF");
  EXPECT_FALSE(isHarmless(pathFromBytes("\xff").front().unicode())) << "not UTF-8";
}

TEST(MainQueue, RunsJobsInOrderAfterTheirCallerAndNeverWhileHeld) {
  MainQueue queue;
  QString order;
  std::optional<MainQueue::Hold> hold(queue);
  queue.async([&] {
    order += "1";
    queue.async([&] { order += "3"; });
  });
  queue.async([&] { order += "2"; });
  QCoreApplication::processEvents();
  hold.reset();
  EXPECT_EQ(order, "");
  for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
  EXPECT_EQ(order, "123");
}

TEST(NotificationCenter, NeverCallsADestroyedObserver) {
  NotificationCenter center;
  int heard = 0;
  {
    const QObject dead;
    center.addObserver(&dead, "a", [&](const Notification &) { ++heard; });
  }
  center.post({"a"});
  EXPECT_EQ(heard, 0);
}
