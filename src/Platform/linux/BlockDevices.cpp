#include "Platform/linux/BlockDevices.h"

#include <sys/sysmacros.h>

#include <QDir>
#include <QFile>
#include <optional>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

enum class Rank { Drive, OtherHardware, Virtual, Loop, Reader };

Rank rank(const QString &kernelName) {
  static constexpr std::pair<QLatin1StringView, Rank> kinds[] = {
      {"sd"_L1, Rank::Drive},     {"nvme"_L1, Rank::Drive},   {"vd"_L1, Rank::Drive},
      {"mmcblk"_L1, Rank::Drive}, {"hd"_L1, Rank::Drive},     {"xvd"_L1, Rank::Drive},
      {"dm-"_L1, Rank::Virtual},  {"md"_L1, Rank::Virtual},   {"bcache"_L1, Rank::Virtual},
      {"nbd"_L1, Rank::Virtual},  {"drbd"_L1, Rank::Virtual}, {"loop"_L1, Rank::Loop},
      {"sr"_L1, Rank::Reader},    {"fd"_L1, Rank::Reader},
  };
  for (const auto &[prefix, rank] : kinds) {
    if (kernelName.startsWith(prefix)) return rank;
  }
  return Rank::OtherHardware;
}

// Of two devices of one kind, the longer name has the higher number or the later letter.
auto sortKey(const QString &kernelName) {
  return std::tuple(rank(kernelName), kernelName.left(2), kernelName.size(), kernelName);
}

QString deviceText(quint64 device) {
  return u"%1:%2"_s.arg(major(device)).arg(minor(device));
}

std::optional<quint64> deviceFromText(const QString &text) {
  const auto parts = text.split(u':');
  if (parts.size() != 2) return std::nullopt;
  return makedev(parts[0].toUInt(), parts[1].toUInt());
}

}  // namespace

bool isMemoryDevice(const QString &kernelName) {
  return kernelName.startsWith("zram"_L1) || kernelName.startsWith("ram"_L1);
}

bool comesBefore(const WholeDisk &one, const WholeDisk &other) {
  return sortKey(one.kernelName) < sortKey(other.kernelName);
}

QString BlockDevices::attribute(const QString &kernelName, const QString &attribute) const {
  QFile file(_folder + u'/' + kernelName + u'/' + attribute);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromLatin1(file.readLine(100).trimmed());
}

QList<WholeDisk> BlockDevices::all() const {
  QList<WholeDisk> disks;
  const auto names = QDir(_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  for (const QString &name : names) {
    const auto device = deviceFromText(attribute(name, u"dev"_s));
    const bool isEmpty = attribute(name, u"size"_s).toULongLong() == 0;
    const bool isHidden = attribute(name, u"hidden"_s) == "1"_L1;  // one of a drive's paths
    if (!device || isEmpty || isHidden || isMemoryDevice(name)) continue;
    disks.append({name, *device});
  }
  return disks;
}

QString BlockDevices::identityOf(const WholeDisk &disk) const {
  const QString device = deviceText(disk.device);
  const QString sequence = attribute(disk.kernelName, u"diskseq"_s);
  const bool isKnown = attribute(disk.kernelName, u"dev"_s) == device;
  return isKnown && !sequence.isEmpty() ? u"diskseq "_s + sequence : u"device "_s + device;
}
