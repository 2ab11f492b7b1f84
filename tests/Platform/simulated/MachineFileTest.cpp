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

TEST(MachineFile, IsRefusedWithItsPlaceAndTheReason) {
  EXPECT_EQ(refusalOf("{\n  \"disks\": [,]\n}"), "line 2, column 13: illegal value");
  EXPECT_EQ(refusalOf("[]"), "line 1, column 1: an object in braces is needed");
  EXPECT_EQ(refusalOf(R"({ "disk": [] })"), "disk: nothing by this name is known here");
  EXPECT_EQ(refusalOf(R"({ "disks": {} })"), "disks: a list in brackets is needed");
  EXPECT_EQ(refusalOf(R"({ "service": "off" })"),
            "service: \"answering\", \"asking\" or \"absent\" is needed");
  EXPECT_EQ(refusalOf(R"({ "disks": [ { "unit": 0 }, { "unit": 0 } ] })"),
            "disks[1].unit: the machine has a disk0 already");
  EXPECT_EQ(refusalOfPartition(R"({ "slice": 1.5 })"),
            "disks[0].partitions[0].slice: a whole number from 1 to 99999 is needed");
  EXPECT_EQ(refusalOfPartition(R"({ "slice": 1, "volume": { "name": 1 } })"),
            "disks[0].partitions[0].volume.name: a text in quotes is needed");
  EXPECT_EQ(refusalOfPartition(R"({ "slice": 1, "volume": { "mountPoint": "../up" } })"),
            "disks[0].partitions[0].volume.mountPoint: an absolute path or a name without \"/\" is "
            "needed");
  for (const char *rest :
       {R"()", R"("slice": 1, "uuid": "12AB")", R"("slice": 1, "mishap": "flood")"}) {
    EXPECT_NE(refusalOfPartition("{ " + QByteArray(rest) + " }"), "accepted") << rest;
  }
  for (const char *status : {"\"bussy\"", "1.5", "1e30", "0", "true"}) {
    EXPECT_NE(
        refusalOfPartition(R"({ "slice": 1, "refuse": { "mount": )" + QByteArray(status) + " } }"),
        "accepted")
        << status;
  }
}

TEST(MachineFile, GivesTheMachineThatItDescribes) {
  const auto result =
      readMachineFile(R"({ "productVersion": "10.8", "disks": [ { "unit": 3, "partitions": [
      { "slice": 2, "volume": { "kind": "msdos" }, "refuse": { "mount": "busy", "unmount": 49153 } } ] } ] })");
  const auto *machine = std::get_if<Machine>(&result);
  ASSERT_NE(machine, nullptr);
  EXPECT_EQ(machine->productVersion, "10.8");
  const SimulatedPartition &partition = machine->disks[0].partitions[0];
  EXPECT_EQ(machine->disks[0].bsdName(partition), "disk3s2");
  EXPECT_EQ(partition.mountRefusal, kDAReturnBusy);
  EXPECT_EQ(partition.unmountRefusal, unixErrorStatus(1));
  EXPECT_FALSE(partition.mountPoint.has_value());
}

TEST(MachineFile, TheOnesThatShipAreAccepted) {
  const QStringList names = shippedMachines();
  EXPECT_TRUE(names.contains("laptop"));
  for (const QString &name : names) {
    const auto result = loadMachineFile(name);
    EXPECT_TRUE(std::holds_alternative<Machine>(result)) << name.toStdString();
  }
}
