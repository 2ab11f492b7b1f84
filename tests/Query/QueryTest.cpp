#include "Query/Query.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <algorithm>

#include "Foundation/Text.h"
#include "Query/Operations.h"
#include "support/Files.h"
#include "support/TestMachine.h"

namespace {

class Query : public testing::Test {
 protected:
  Query() { describeMachine(twoEspMachine()); }

  void describeMachine(const QByteArray &json) { writeFile(_folder.filePath("m.json"), json); }
  QueryResult ask(const QStringList &words) {
    const QStringList start = {"keldra-query", "--machine", _folder.filePath("m.json")};
    return runQuery(start + words, noMachine, std::chrono::milliseconds(50));
  }
  QString plain(const QStringList &words) { return ask(words).output; }
  QJsonObject json(const QStringList &words) {
    return QJsonDocument::fromJson(ask(words + QStringList("--json")).output.toUtf8()).object();
  }

  static std::unique_ptr<Platform> noMachine() {
    ADD_FAILURE() << "this machine was asked";
    return nullptr;
  }

  QTemporaryDir _folder;
};

bool isHarmlessLine(const QString &line) {
  const auto characters = line.toUcs4();
  return std::all_of(characters.begin(), characters.end(), isHarmless);
}

}  // namespace

TEST_F(Query, DistinguishesAbsentAnswersSentinelsAndTexts) {
  describeMachine(R"json({ "disks": [ { "unit": 0, "partitions": [ { "slice": 1 },
      { "slice": 2, "media": "absent" }, { "slice": 3, "media": "(null)" } ] } ] })json");
  EXPECT_EQ(plain({"findPartitionName", "disk0s1"}), "absent\n");
  EXPECT_EQ(ask({"findPartitionName", "disk0s1"}).status, QueryResult::Absent);
  EXPECT_TRUE(json({"findPartitionName", "disk0s1"})["answer"].isNull());
  EXPECT_EQ(plain({"findPartitionName", "disk0s2"}), "\"absent\"\n");
  EXPECT_EQ(plain({"findPartitionName", "disk0s3"}), "\"N/A\" (a sentinel)\n");
  EXPECT_EQ(json({"findPartitionName", "disk0s3"}), QJsonObject({{"operation", "findPartitionName"},
                                                                 {"argument", "disk0s3"},
                                                                 {"answer", "N/A"},
                                                                 {"sentinel", true}}));
  EXPECT_EQ(plain({"findAllPartitionNameParentSeparatedByComma", "disk9"}), "\"\"\n");
  EXPECT_EQ(plain({"getDAdiskDescriptionFromBSDorMountpoint", "disk9"}), "an empty description\n");
}

TEST_F(Query, PrintsEachKindOfAnswer) {
  EXPECT_EQ(plain({"findAllEFIdisk"}), "\"disk1s1\"\n\"disk0s1\"\n");
  EXPECT_EQ(plain({"isGPT", "disk2s1"}), "NO\n");
  EXPECT_EQ(plain({"findOSXMinorVersion"}), "15\n");
  const QJsonObject description =
      json({"getDAdiskDescriptionFromBSDorMountpoint", "/"})["answer"].toObject();
  EXPECT_EQ(description[kDADiskDescriptionVolumePathKey], "/");
  EXPECT_EQ(description[kDADiskDescriptionMediaBSDNameKey], "disk0s3");
}

TEST_F(Query, EveryOperationAnswersAnyArgumentWithEscapedOutput) {
  const QString hostile = QString::fromUtf8("a\"\\\n\t\u001b[1m\u202E\u2028\U000E0001%n\u007f");
  const QByteArray name = QJsonDocument(QJsonObject{{"media", hostile}}).toJson();
  describeMachine(R"({ "disks": [ { "unit": 0, "media": "x", "partitions": [ { "slice": 1, "volume":
      { "kind": "ext4", "name": "n", "mountPoint": "/" }, )" +
                  name.mid(1, name.size() - 3) + "} ] } ] }");
  for (const Operation &operation : operations()) {
    for (const QString &argument : {QString("disk0s1"), QString(), hostile.repeated(100)}) {
      SCOPED_TRACE(operation.name.toStdString());
      QStringList words = {operation.name};
      if (operation.takes != Operation::Takes::Nothing) words << "--" << argument;
      const QueryResult result = ask(words);
      EXPECT_LE(result.status, QueryResult::Absent) << result.errors.toStdString();
      for (const QString &line : result.output.split('\n')) EXPECT_TRUE(isHarmlessLine(line));
      words.insert(1, "--json");
      const QString line = ask(words).output.chopped(1);
      EXPECT_TRUE(isHarmlessLine(line)) << line.toStdString();
      EXPECT_TRUE(QJsonDocument::fromJson(line.toUtf8()).object().contains("answer"));
    }
  }
  EXPECT_EQ(json({"findPartitionName", "disk0s1"})["answer"], hostile) << "a changed name";
}

TEST_F(Query, RefusesInvalidCommandLines) {
  for (const QString command :
       {"", "--json", "--what", "isgpt", "isGPT", "isGPT a b", "--machine", "getAlldisks x",
        "\u202E\n", "--machine /no/such/file getAlldisks", "--machine /dev/zero getAlldisks"}) {
    const QueryResult result = ask(command.split(' ', Qt::SkipEmptyParts));
    EXPECT_EQ(result.status, QueryResult::Misuse) << command.toStdString();
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(isHarmlessLine(result.errors.chopped(1))) << result.errors.toStdString();
  }
  const QueryResult help = ask({"--help"});
  EXPECT_EQ(help.status, QueryResult::Answered);
  EXPECT_TRUE(help.output.contains("  " + operations().last().name));
}

TEST_F(Query, WaitsForTheServiceForALimitedTime) {
  describeMachine(R"({ "service": "asking", "answersAfter": 5 })");
  EXPECT_EQ(plain({"getAlldisks"}), "an empty list\n");
  for (const char *service : {"asking", "absent"}) {
    describeMachine(QByteArray(R"({ "service": ")") + service + "\" }");
    EXPECT_EQ(ask({"getAlldisks"}).status, QueryResult::NoService);
    EXPECT_EQ(ask({"getAlldisks"}).errors, "keldra-query: no disk service answers\n");
  }
}
