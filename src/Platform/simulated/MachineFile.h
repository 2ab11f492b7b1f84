#pragma once

// Machine files: JSON that describes a machine for the simulated platform.
//
//   { "disks": [
//       { "unit": 0, "media": "Samsung SSD 990 PRO 2TB", "scheme": "GUID_partition_scheme",
//         "partitions": [
//           { "slice": 1, "media": "EFI System Partition", "delay": 500,
//             "volume": { "kind": "msdos", "name": "EFI", "mountPoint": "EFI" },
//             "refuse": { "unmount": "busy" } } ] } ] }
//
// A mount point without a "/" is a folder in the machine's volumes folder. A refusal is one of the
// phrases of `daStatus` or a number; a delay is in milliseconds and holds for both requests.
// Further keys: "productVersion" and "service" ("answering", "asking", "absent") of the machine;
// "uuid", "protocol", "device", "writable", "ejectable" and "internal" of a disk; "content", "uuid"
// and "device" of a partition; "uuid" of a volume.

#include <QByteArray>
#include <variant>

#include "Platform/simulated/Machine.h"

/// Why a machine file was refused.
struct MachineFileError {
  QString place;  // "line 3, column 9" or "disks[0].partitions[1].slice"
  QString reason;

  QString text() const { return place + QStringLiteral(": ") + reason; }
};

/// The machine, or the first thing that is wrong with the file. A key that is not known is an
/// error.
std::variant<Machine, MachineFileError> readMachineFile(const QByteArray &json);
