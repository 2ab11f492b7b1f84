#include "DiskArbitrator/DiskFree.h"

#include <QStringList>

using namespace Qt::StringLiterals;

std::optional<QString> mountPointInDiskFree(const QString &output, const QString &devicePath) {
  const QStringList lines = output.split(u'\n');
  for (const QString &line : lines) {
    if (!line.startsWith(devicePath)) continue;
    const QStringList pieces = line.split("% "_L1);
    if (pieces.size() < 2) return std::nullopt;
    return pieces[1].trimmed();
  }
  return std::nullopt;
}
