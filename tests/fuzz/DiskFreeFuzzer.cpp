// The output of /bin/df: any number of volumes, with any bytes in the names of their mount points.

#include "DiskArbitrator/DiskFree.h"
#include "fuzz/Fuzzer.h"

void fuzz(const QByteArray &bytes) {
  const QString output = QString::fromUtf8(bytes);
  const auto mountPoint = mountPointInDiskFree(output, QStringLiteral("/dev/disk0s1"));
  mustHold(!mountPoint || (output.contains(*mountPoint) && !mountPoint->contains(u'\n')));
}
