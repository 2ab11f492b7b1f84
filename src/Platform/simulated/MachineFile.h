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
// A mount point without a "/" is a folder in the machine's volumes folder. Further keys:
//
//   machine     "productVersion", "root" (whether the user is root; the default is true), "service",
//               "answersAfter"
//   disk        "uuid", "protocol", "device", "writable", "ejectable", "internal",
//               "physicalBlockSize", "logicalBlockSize" (in bytes),
//               "icon" (a driver's "bundle" and the "file" in it)
//   partition   "content", "uuid", "device", "mishap"
//   volume      "uuid", "subtype" (0, 1 and 2 are FAT12, FAT16 and FAT32), "usedBy" (a list of
//               processes, such as "vim (4711)")
//
// How the service behaves:
//
//   "service"       "answering" (the default), "asking" (nothing is known yet) or "absent".
//   "answersAfter"  milliseconds until a service that is "asking" answers; without it, it never
//                   does.
//   "delay"         milliseconds from a request for the partition to its answer.
//   "refuse"        answers every mount or unmount with a phrase of `daStatus` or a number.
//   "mishap"        once, at the next request for the partition: "disk vanishes before", "disk
//                   vanishes during", "disk vanishes after" (the request), or "service dies" (while
//                   the request waits; what was mounted stays so).

#include <QByteArray>
#include <QStringList>
#include <variant>

#include "Platform/simulated/Machine.h"

/// Why a machine file was refused.
struct MachineFileError {
  QString place;  // "line 3, column 9" or "disks[0].partitions[1].slice"
  QString reason;

  QString text() const { return place + QStringLiteral(": ") + reason; }
};

/// The machine, or the first error in the text. An unknown key is an error.
std::variant<Machine, MachineFileError> readMachineFile(const QByteArray &json);

/// The same for a file's content, or for a machine that ships, by its name ("laptop").
std::variant<Machine, MachineFileError> loadMachineFile(const QString &name);

/// The names of the machines that ship.
QStringList shippedMachines();
