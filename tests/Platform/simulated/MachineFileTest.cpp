#include "Platform/simulated/MachineFile.h"

#include <gtest/gtest.h>

namespace {

std::string refusalOf(const QByteArray &json) {
  const auto result = readMachineFile(json);
  const auto *error = std::get_if<MachineFileError>(&result);
  return error == nullptr ? "accepted" : error->text().toStdString();
}

std::string refusalOfPartition(const QByteArray &partition) {
  return refusalOf(R"({ "disks": [ { "unit": 0, "partitions": [ )" + partition + " ] } ] }");
}

}  // namespace

TEST(MachineFile, IsRefusedWithThePlaceAndTheReasonOfAnError) {
  EXPECT_EQ(refusalOf("{\n  \"disks\": [,]\n}"), "line 2, column 13: illegal value");
  EXPECT_EQ(refusalOf(R"({ "disk": [] })"), "disk: nothing by this name is known here");
  EXPECT_EQ(refusalOf(R"({ "disks": [ { "unit": 0 }, { "unit": 0 } ] })"),
            "disks[1].unit: the machine has a disk0 already");
  EXPECT_EQ(refusalOfPartition(R"({ "slice": 1, "volume": { "name": 1 } })"),
            "disks[0].partitions[0].volume.name: a text in quotes is needed");
  for (const char *file : {"[]", R"({ "disks": {} })", R"({ "service": "off" })"}) {
    EXPECT_NE(refusalOf(file), "accepted") << file;
  }
  for (const char *partition :
       {"{ }", R"({ "slice": 1.5 })", R"({ "slice": 1, "uuid": "12AB" })",
        R"({ "slice": 1, "mishap": "flood" })", R"({ "slice": 1, "refuse": { "mount": "bussy" } })",
        R"({ "slice": 1, "refuse": { "mount": 1e30 } })",
        R"({ "slice": 1, "volume": { "mountPoint": "../up" } })"}) {
    EXPECT_NE(refusalOfPartition(partition), "accepted") << partition;
  }
  EXPECT_EQ(refusalOfPartition(R"({ "slice": 1, "refuse": { "unmount": 49153 } })"), "accepted");
}

TEST(MachineFile, ShippedFilesAreAccepted) {
  const QStringList names = shippedMachines();
  EXPECT_TRUE(names.contains("laptop"));
  for (const QString &name : names) {
    const auto result = loadMachineFile(name);
    EXPECT_TRUE(std::holds_alternative<Machine>(result)) << name.toStdString();
  }
}
