#include "LoopDisks.h"

#include <QTextStream>
#include <exception>

#include "Commands.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEspMegabytes = 16;

QByteArray tableOf(int partitions) {
  const QByteArray esp = "type=U, size=" + QByteArray::number(kEspMegabytes) + "M\n";
  return "label: gpt\ntable-length: 128\n" + esp +
         QByteArray("type=L, size=1M\n").repeated(partitions - 1);
}

}  // namespace

LoopDisks::LoopDisks(int partitions) {
  for (int i = 0; i < kDisks; ++i) {
    create(i, partitions / kDisks + (i < partitions % kDisks ? 1 : 0));
  }
  for (const QString &device : {mountableDevice(), otherMountableDevice()}) {
    outputOf(u"loop-disk"_s, {u"format"_s, device, u"ext4"_s, u"BENCH"_s});
  }
}

LoopDisks::~LoopDisks() {
  for (const QString &disk : _disks) {
    try {
      outputOf(u"loop-disk"_s, {u"remove"_s, disk});
    } catch (const std::exception &problem) {
      // The laboratory removes the remaining disks.
      QTextStream(stderr) << problem.what() << '\n';
    }
  }
}

void LoopDisks::create(int number, int partitions) {
  const QString name = u"bench%1"_s.arg(number);
  const QString megabytes = QString::number(kEspMegabytes + partitions + 8);
  const QByteArray device =
      outputOf(u"loop-disk"_s, {u"create"_s, name, megabytes}, tableOf(partitions));
  _disks << QString::fromLocal8Bit(device.trimmed());
}
