// Machine files: an invalid one is refused with a place and a reason.

#include "Platform/simulated/Describe.h"
#include "Platform/simulated/MachineFile.h"
#include "fuzz/Fuzzer.h"

void fuzz(const QByteArray &bytes) {
  const auto result = readMachineFile(bytes);
  if (const auto *error = std::get_if<MachineFileError>(&result)) {
    return mustHold(!error->place.isEmpty() && !error->reason.isEmpty());
  }
  for (const SimulatedDisk &disk : std::get<Machine>(result).disks) {
    mustHold(disk.unit >= 0);
    for (const SimulatedPartition &partition : disk.partitions) {
      mustHold(describe(disk, partition).contains(kDADiskDescriptionMediaBSDNameKey));
    }
  }
}
