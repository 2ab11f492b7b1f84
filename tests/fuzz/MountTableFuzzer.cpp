// The kernel's mount table, whose names of mount points and sources are not trusted.

#include "Platform/linux/MountTable.h"
#include "fuzz/Fuzzer.h"

void fuzz(const QByteArray &bytes) {
  const QList<MountLine> lines = parseMountTable(bytes);
  mustHold(lines.size() <= bytes.count('\n') + 1);
  for (const MountLine &line : lines) mustHold(line.mountPoint.startsWith('/'));
}
