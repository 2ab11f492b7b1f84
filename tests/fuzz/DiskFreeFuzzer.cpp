// What /bin/df prints: any number of volumes, with any bytes in the names of their mount points.

#include "DiskArbitrator/DiskFree.h"
#include "fuzz/Fuzzer.h"

void fuzz(const QByteArray &bytes) {
  const QString output = QString::fromUtf8(bytes);
  const QString device = QStringLiteral("/dev/disk0s1");
  const auto mountPoint = mountPointInDiskFree(output, device);
  if (!mountPoint.has_value()) return;
  mustHold(output.contains(device) && output.contains(*mountPoint));
  mustHold(*mountPoint == mountPoint->trimmed() && !mountPoint->contains(u'\n'));
}
