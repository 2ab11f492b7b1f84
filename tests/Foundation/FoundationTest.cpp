#include <gtest/gtest.h>

#include <QCoreApplication>
#include <memory>

#include "Foundation/MainQueue.h"
#include "Foundation/NotificationCenter.h"
#include "Foundation/Paths.h"
#include "Foundation/Text.h"

TEST(Text, ReadsTheNumberThatATextBeginsWith) {
  const std::pair<QString, int> rows[] = {{" \t12abc", 12}, {"-7.5", -7},
                                          {"+3", 3},        {"x1", 0},
                                          {"", 0},          {"99999999999999999999", 2147483647}};
  for (const auto &[text, number] : rows) EXPECT_EQ(leadingInteger(text), number);
}

TEST(Text, TakesTheLastComponentOfAPath) {
  const std::pair<QString, QString> rows[] = {
      {"/Volumes/Data//", "Data"}, {"///", "/"}, {"N/A", "N/A"}, {"EFI", "EFI"}, {"", ""}};
  for (const auto &[path, component] : rows) EXPECT_EQ(lastPathComponent(path), component);
}

TEST(Text, AbsentTextsAreNeverTheSame) {
  EXPECT_FALSE(areEqualTexts(std::nullopt, std::nullopt));
  EXPECT_FALSE(areEqualTexts(QString(), std::nullopt));
  EXPECT_TRUE(areEqualTexts(QString("a"), QString("a")));
}

TEST(Paths, KeepTheirBytes) {
  const QByteArray all[] = {"/plain",        "/caf\xc3\xa9 100%",
                            "/a\xff/b\xc3",  "/\xe2\x82z\xf0\x9f\x98\x80",
                            "/\xed\xb2\x80", ""};
  for (const QByteArray &bytes : all) {
    const QString path = pathFromBytes(bytes);
    EXPECT_EQ(bytesOfPath(path), bytes);
    EXPECT_EQ(pathOfUrl(urlOfPath(path)), path) << bytes.toPercentEncoding().constData();
  }
  EXPECT_EQ(urlOfPath(pathFromBytes("/a b\xff")).toEncoded(), "file:///a%20b%FF");
  EXPECT_FALSE(isHarmless(pathFromBytes("\xff").front().unicode())) << "it is not painted";
}

TEST(MainQueue, RunsJobsInOrderAfterTheirCallerAndNeverWhileHeld) {
  MainQueue queue;
  QString order;
  {
    const MainQueue::Hold outer(queue);
    queue.async([&] {
      order += "1";
      queue.async([&] { order += "3"; });
    });
    queue.async([&] { order += "2"; });
    { const MainQueue::Hold inner(queue); }
    QCoreApplication::processEvents();
    EXPECT_EQ(order, "");
  }
  EXPECT_EQ(order, "");
  for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
  EXPECT_EQ(order, "123");
}

TEST(NotificationCenter, DeliversAtOnceByNameAndForgetsTheDead) {
  NotificationCenter center;
  QString heard;
  auto first = std::make_unique<QObject>();
  QObject second;
  center.addObserver(first.get(), "a", [&](const Notification &) { heard += "1"; });
  center.addObserver(&second, "a", [&](const Notification &) {
    heard += "2";
    center.addObserver(&second, "b", [&](const Notification &) { heard += "b"; });
  });
  center.post({"a"});
  EXPECT_EQ(heard, "12");
  first.reset();
  center.post({"a"});
  EXPECT_EQ(heard, "122");
  center.post({"b"});
  EXPECT_EQ(heard, "122bb");
}
