#include "support/TestMachine.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QToolTip>

#include "Platform/simulated/MachineFile.h"

QString toolTipOf(QWidget *widget) {
  QHelpEvent event(QEvent::ToolTip, {5, 5}, widget->mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(widget, &event);
  return QToolTip::text();
}

Machine machineOf(const QByteArray &json) {
  const auto result = readMachineFile(json);
  if (const auto *error = std::get_if<MachineFileError>(&result)) {
    ADD_FAILURE() << error->text().toStdString();
    return {};
  }
  return std::get<Machine>(result);
}

QByteArray twoEspMachine() {
  return R"({ "disks": [
    { "unit": 1, "media": "WDC Blue", "scheme": "GUID_partition_scheme", "protocol": "SATA",
      "uuid": "0e2f0b4c-1111-4c4c-8d8d-121212121212",
      "partitions": [
        { "slice": 1, "media": "EFI System Partition", "device": "/dev/sda1",
          "content": "C12A7328-F81F-11D2-BA4B-00A0C93EC93B", "volume": { "kind": "msdos", "name": "EFI" } },
        { "slice": 2, "media": "Basic data", "uuid": "11111111-2222-3333-4444-5555555555aa",
          "volume": { "kind": "ext4", "name": "Data", "mountPoint": "Data",
                      "uuid": "aaaaaaaa-bbbb-4ccc-8ddd-eeeeeeeeeeee" } } ] },
    { "unit": 0, "media": "Samsung SSD", "scheme": "GUID_partition_scheme", "internal": true,
      "partitions": [
        { "slice": 1, "media": "EFI System Partition", "volume": { "kind": "msdos", "name": "EFI" } },
        { "slice": 2, "media": "Recovery HD" },
        { "slice": 3, "media": "Linux filesystem",
          "volume": { "kind": "ext4", "name": "System", "mountPoint": "/" } } ] },
    { "unit": 2, "media": "Stick", "scheme": "FDisk_partition_scheme", "ejectable": true, "writable": false,
      "partitions": [ { "slice": 1, "media": "FAT", "volume": { "kind": "msdos", "uuid": "12AB-34CD" } } ] }
  ] })";
}
